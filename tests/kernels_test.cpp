// Every kernel of the manifest, as the library exports it.
#include <dlfcn.h>
#include <gtest/gtest.h>
#include <quadmath.h>

#include <cmath>

#include "gen/manifest.h"
#include "tests/harness/checks.h"

namespace {

using gen::Quad;
using harness::Findings;
using harness::Subject;

Subject exported(const gen::Kernel& kernel) {
  void* function = dlsym(RTLD_DEFAULT, kernel.name.c_str());
  return {kernel, reinterpret_cast<harness::KernelFunction>(function)};
}

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
  const int sign = kernel.scale_rule == gen::ScaleRule::kForward ? -1 : 1;
  return
      [n = kernel.length, sign](const std::vector<double>& x) { return complex_dft(n, sign, x); };
}

// The largest relative L2 error that a kernel may have, in units of u. A composite length rounds
// about three times a stage, at about u / 2 each and independently, in up to four stages.
constexpr double kErrorBound = 1.7;

class EveryKernel : public testing::TestWithParam<Subject> {};

TEST_P(EveryKernel, IsExported) { ASSERT_NE(GetParam().function, nullptr); }

TEST_P(EveryKernel, IsAccurate) {
  const gen::Kernel& kernel = GetParam().kernel;
  const double error = harness::relative_error(GetParam(), reference_for(kernel));
  EXPECT_LE(error, kErrorBound);
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

std::vector<Subject> subjects() {
  std::vector<Subject> result;
  for (const gen::Kernel& kernel : gen::all_kernels()) result.push_back(exported(kernel));
  return result;
}

INSTANTIATE_TEST_SUITE_P(Manifest, EveryKernel, testing::ValuesIn(subjects()),
                         [](const auto& info) { return info.param.kernel.name; });

}  // namespace
