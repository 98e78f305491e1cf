// Every kernel of the manifest, as the library exports it.
#include <dlfcn.h>
#include <gtest/gtest.h>

#include <cmath>

#include "gen/manifest.h"
#include "tests/harness/checks.h"
#include "tests/references.h"

namespace {

using harness::Findings;
using harness::Subject;

Subject exported(const gen::Kernel& kernel) {
  void* function = dlsym(RTLD_DEFAULT, kernel.name.c_str());
  return {kernel, reinterpret_cast<harness::KernelFunction>(function)};
}

class EveryKernel : public testing::TestWithParam<Subject> {};

TEST_P(EveryKernel, IsExported) { ASSERT_NE(GetParam().function, nullptr); }

TEST_P(EveryKernel, HasTheBitsOfItsDataFlow) {
  EXPECT_EQ(harness::check_bits(GetParam()), Findings{});
}

TEST_P(EveryKernel, GivesTheSameBitsAtEveryAlignment) {
  EXPECT_EQ(harness::check_alignment(GetParam()), Findings{});
}

TEST_P(EveryKernel, TouchesItsArraysAlone) {
  EXPECT_EQ(harness::check_memory(GetParam()), Findings{});
}

TEST_P(EveryKernel, ChecksItsArguments) {
  EXPECT_EQ(harness::check_arguments(GetParam()), Findings{});
}

TEST_P(EveryKernel, KeepsTheCallingConvention) {
  EXPECT_EQ(harness::check_calling_convention(GetParam()), Findings{});
}

using Names = std::function<bool(const gen::Kernel&)>;
std::vector<Subject> subjects(const Names& among) {
  std::vector<Subject> result;
  for (const gen::Kernel& kernel : gen::all_kernels()) {
    if (among(kernel)) result.push_back(exported(kernel));
  }
  return result;
}

std::string name_of(const testing::TestParamInfo<Subject>& info) { return info.param.kernel.name; }

INSTANTIATE_TEST_SUITE_P(Manifest, EveryKernel,
                         testing::ValuesIn(subjects([](const auto&) { return true; })), name_of);

int largest_prime_factor(int n) {
  int largest = 1;
  for (int p = 2; n > 1; ++p) {
    for (; n % p == 0; n /= p) largest = p;
  }
  return largest;
}

// The largest relative L2 error over random inputs, in units of u. A stage of short blocks rounds
// every value about three times, at 0.4 u each and independently: 0.7 u a stage, and up to four
// stages in a composite length. Rader's form has the stages of the length below twice, and a
// product between them; at 47 and 59 it is nested in itself, or the chirp form takes twice the
// stages of a length above the double. On real data, single precision keeps the sums of products in
// double and rounds every value about twice a stage: 0.5 u.
double error_bound(const gen::Kernel& kernel) {
  const int n = kernel.length, prime = largest_prime_factor(n);
  // A stage rounds every value once, by an error that is spread evenly over 2 u times a power of
  // two below the value: at most u / sqrt(3) of it on average. Errors of stages add up in squares.
  if (kernel.family.starts_with("wht")) return std::sqrt(std::log2(n) / 3);
  const bool is_complex = kernel.name.find("CToC") != std::string::npos;
  const bool sums_are_double = !is_complex && kernel.precision == gen::Precision::kSingle;
  if (prime <= 11 && (n != prime || prime <= 5)) return sums_are_double ? 1.5 : 1.7;
  if (sums_are_double) return 2.0;
  if (n == 47 || n == 59) return 4.0;
  return n == prime ? 2.5 : 2.25;
}

// Kernels by whose definition the others of their family are defined.
class DefinedKernel : public testing::TestWithParam<Subject> {};

TEST_P(DefinedKernel, IsAccurate) {
  const gen::Kernel& kernel = GetParam().kernel;
  const double error = harness::relative_error(GetParam(), references::of(kernel));
  EXPECT_LE(error, error_bound(kernel));
  // For the table of figures.
  RecordProperty("error_in_u", std::to_string(error));
}

INSTANTIATE_TEST_SUITE_P(Manifest, DefinedKernel,
                         testing::ValuesIn(subjects([](const gen::Kernel& kernel) {
                           return kernel.name.find("Pack") == std::string::npos &&
                                  kernel.name.find("Perm") == std::string::npos;
                         })),
                         name_of);

class ComplexKernel : public testing::TestWithParam<Subject> {};

// In Rader's form x[0] reaches every other bin through one addition, and the direct forms add it as
// it stands: an impulse there comes out unrounded. A constant cancels only up to rounding.
TEST_P(ComplexKernel, KnowsImpulsesAndConstants) {
  const gen::Kernel& kernel = GetParam().kernel;
  const bool single = kernel.precision == gen::Precision::kSingle;
  const double u = single ? 0x1p-24 : 0x1p-53, n = kernel.length;
  const double tolerance = kernel.recipe.starts_with("chirp") ? 8 * u : 0;
  std::vector<double> source(2 * kernel.length), destination;
  source[0] = 1;
  destination = harness::run(GetParam(), source, ZULG_SCALE_NONE);
  for (int k = 0; k < kernel.length; ++k) {
    EXPECT_NEAR(destination[2 * k], 1, tolerance) << k;
    EXPECT_NEAR(destination[2 * k + 1], 0, tolerance) << k;
  }
  for (int i = 0; i < kernel.length; ++i) source[2 * i] = 0.75;
  destination = harness::run(GetParam(), source, ZULG_SCALE_NONE);
  EXPECT_NEAR(destination[0], 0.75 * n, 4 * n * u);
  for (std::size_t i = 1; i < destination.size(); ++i) EXPECT_NEAR(destination[i], 0, 4 * n * u);
}

INSTANTIATE_TEST_SUITE_P(Manifest, ComplexKernel,
                         testing::ValuesIn(subjects([](const gen::Kernel& kernel) {
                           return kernel.name.find("CToC") != std::string::npos;
                         })),
                         name_of);

}  // namespace
