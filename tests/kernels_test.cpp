// Every kernel of the manifest, as the library exports it.
#include <dlfcn.h>
#include <gtest/gtest.h>
#include <quadmath.h>

#include <cmath>

#include "gen/manifest.h"
#include "networks/walsh_hadamard.h"
#include "tests/harness/checks.h"

namespace {

using gen::Quad;
using harness::Findings;
using harness::Subject;

Subject exported(const gen::Kernel& kernel) {
  void* function = dlsym(RTLD_DEFAULT, kernel.name.c_str());
  return {kernel, reinterpret_cast<harness::KernelFunction>(function)};
}

bool is_walsh_hadamard(const gen::Kernel& kernel) { return kernel.family.starts_with("wht"); }

// The definition, summed in quad precision with the compiler's own trigonometry.
std::vector<Quad> complex_dft(int n, int sign, const std::vector<double>& x) {
  std::vector<Quad> cosine(n), sine(n), result(2 * n);
  for (int i = 0; i < n; ++i) {
    cosine[i] = cosq(2 * M_PIq * i / n);
    sine[i] = sign * sinq(2 * M_PIq * i / n);
  }
  for (int k = 0; k < n; ++k) {
    for (int j = 0; j < n; ++j) {
      const int turn = j * k % n;
      result[2 * k] += x[2 * j] * cosine[turn] - x[2 * j + 1] * sine[turn];
      result[2 * k + 1] += x[2 * j] * sine[turn] + x[2 * j + 1] * cosine[turn];
    }
  }
  return result;
}

harness::Reference reference_for(const gen::Kernel& kernel) {
  if (is_walsh_hadamard(kernel)) {
    return [](const std::vector<double>& x) {
      return networks::walsh_hadamard(std::vector<Quad>(x.begin(), x.end()));
    };
  }
  const int sign = kernel.scale_rule == gen::ScaleRule::kForward ? -1 : 1;
  return
      [n = kernel.length, sign](const std::vector<double>& x) { return complex_dft(n, sign, x); };
}

// The largest relative L2 error over random inputs, in units of u. A stage of short blocks rounds
// every value about three times, at 0.4 u each and independently: 0.7 u a stage, and up to four
// stages in a composite length. Rader's form has twice the stages of the length below, and a
// product between them; the chirp form twice those of a length above the double. At 47 and 59 the
// double-precision kernels nest one Rader form in another.
double error_bound(const gen::Kernel& kernel) {
  // A stage rounds every value once, by an error that is spread evenly over 2 u times a power of
  // two below the value: at most u / sqrt(3) of it on average. Errors of stages add up in squares.
  if (is_walsh_hadamard(kernel)) return std::sqrt(std::log2(kernel.length) / 3);
  if (kernel.length == 47 || kernel.length == 59) return 4.0;
  bool has_rader_leaf = false;
  for (const char* leaf : {"13", "17", "19", "23", "29", "31"}) {
    has_rader_leaf = has_rader_leaf || kernel.recipe.find(leaf) != std::string::npos;
  }
  const bool is_split = kernel.recipe.starts_with("CT") || kernel.recipe.starts_with("PFA");
  if (!is_split) return 2.5;
  return has_rader_leaf ? 2.25 : 1.7;
}

class EveryKernel : public testing::TestWithParam<Subject> {};

TEST_P(EveryKernel, IsExported) { ASSERT_NE(GetParam().function, nullptr); }

TEST_P(EveryKernel, IsAccurate) {
  const gen::Kernel& kernel = GetParam().kernel;
  const double error = harness::relative_error(GetParam(), reference_for(kernel));
  EXPECT_LE(error, error_bound(kernel));
  // For the table of figures.
  RecordProperty("error_in_u", std::to_string(error));
}

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

// In Rader's form x[0] reaches every other bin through one addition, and the direct forms add it as
// it stands: an impulse there comes out unrounded. A constant cancels only up to rounding.
TEST_P(EveryKernel, KnowsImpulsesAndConstants) {
  const gen::Kernel& kernel = GetParam().kernel;
  if (is_walsh_hadamard(kernel)) return;  // whole numbers, in a test of their own
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

std::vector<Subject> subjects() {
  std::vector<Subject> result;
  for (const gen::Kernel& kernel : gen::all_kernels()) result.push_back(exported(kernel));
  return result;
}

INSTANTIATE_TEST_SUITE_P(Manifest, EveryKernel, testing::ValuesIn(subjects()),
                         [](const auto& info) { return info.param.kernel.name; });

}  // namespace
