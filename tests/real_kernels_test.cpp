// What the real kernels of one length have to do with one another.
#include <gtest/gtest.h>
#include <quadmath.h>

#include <algorithm>
#include <cmath>
#include <limits>

#include "tests/graph_runs.h"

namespace {

using Values = std::vector<double>;

// A kernel by its name, with _N_ for the length.
class Kernels {
 public:
  Kernels() {
    for (gen::Kernel& kernel : generate::all_kernels()) kernels_.emplace(kernel.name, kernel);
  }

  GraphRuns find(std::string name, int length) const {
    name.replace(name.find("_N_"), 3, "_" + std::to_string(length) + "_");
    return GraphRuns(kernels_.at(name));
  }

 private:
  std::map<std::string, gen::Kernel> kernels_;
};

Values run(const GraphRuns& kernel, const Values& source, zulgScaleFlag flag) {
  return kernel.run(source, flag);
}

Values pack_of_ccs(Values x, int n) {
  x.erase(x.begin() + 1);
  if (n % 2 == 0) x.pop_back();
  return x;
}

Values perm_of_pack(Values x) {
  if (x.size() % 2 == 0) std::rotate(x.begin() + 1, x.end() - 1, x.end());
  return x;
}

class RealKernels : public testing::TestWithParam<std::string> {
 protected:
  static const Kernels& kernels() {
    static const Kernels all;
    return all;
  }
  GraphRuns find(const std::string& name, int length) const {
    return kernels().find(name + "_N_" + GetParam(), length);
  }
  double u() const { return GetParam() == "32f" ? 0x1p-24 : 0x1p-53; }
};

TEST_P(RealKernels, LayoutsAreMovesOfOneAnother) {
  for (int n = 2; n <= 64; ++n) {
    for (const auto data : {harness::Data::kUniform, harness::Data::kNotFinite}) {
      const GraphRuns ccs = find("zulgDFTFwd_RToCCS", n);
      const Values x = make_input(ccs.shape(), data, n);
      const Values spectrum = run(ccs, x, ZULG_SCALE_BY_SQRT_N);
      const Values pack = pack_of_ccs(spectrum, n), perm = perm_of_pack(pack);
      EXPECT_TRUE(
          harness::same_bits(run(find("zulgDFTFwd_RToPack", n), x, ZULG_SCALE_BY_SQRT_N), pack));
      EXPECT_TRUE(
          harness::same_bits(run(find("zulgDFTFwd_RToPerm", n), x, ZULG_SCALE_BY_SQRT_N), perm));
      // The slots that hold no part of a bin, whatever comes in.
      Values with_noise = spectrum;
      for (int slot : {1, n + 1}) {
        if (slot == n + 1 && n % 2 == 1) continue;
        EXPECT_EQ(spectrum[slot], 0) << n;
        EXPECT_FALSE(std::signbit(spectrum[slot])) << n;
        with_noise[slot] = std::numeric_limits<double>::quiet_NaN();
      }
      const Values back = run(find("zulgDFTInv_CCSToR", n), spectrum, ZULG_SCALE_INV_BY_N);
      const auto gives_same = [&](const char* name, const Values& array) {
        return harness::same_bits(run(find(name, n), array, ZULG_SCALE_INV_BY_N), back);
      };
      EXPECT_TRUE(gives_same("zulgDFTInv_CCSToR", with_noise)) << n;
      EXPECT_TRUE(gives_same("zulgDFTInv_PackToR", pack)) << n;
      EXPECT_TRUE(gives_same("zulgDFTInv_PermToR", perm)) << n;
    }
  }
}

// A kernel's error is at most 2.9 u relative in L2, which one of N values may have all of.
double tolerance(int n, double u) { return 2.9 * u * std::sqrt(n); }

TEST_P(RealKernels, RoundTripsGiveTheInput) {
  for (int n = 2; n <= 64; ++n) {
    const GraphRuns forward = find("zulgDFTFwd_RToPerm", n),
                    inverse = find("zulgDFTInv_PermToR", n);
    const GraphRuns hartley = find("zulgHartley", n);
    const Values x = make_input(forward.shape(), harness::Data::kUniform, n);
    const double both = 2 * tolerance(n, u());
    for (const zulgScaleFlag flag :
         {ZULG_SCALE_FWD_BY_N, ZULG_SCALE_INV_BY_N, ZULG_SCALE_BY_SQRT_N}) {
      const Values back = run(inverse, run(forward, x, flag), flag);
      for (int i = 0; i < n; ++i) EXPECT_NEAR(back[i], x[i], both) << n;
    }
    const Values same = run(hartley, run(hartley, x, ZULG_SCALE_INV_BY_N), ZULG_SCALE_NONE);
    for (int i = 0; i < n; ++i) EXPECT_NEAR(same[i], x[i], both) << n;
  }
}

TEST_P(RealKernels, KnowImpulsesAndZeros) {
  for (int n = 2; n <= 64; ++n) {
    const GraphRuns forward = find("zulgDFTFwd_RToCCS", n), hartley = find("zulgHartley", n);
    Values x(n);
    // Sign flips subtract from +0.0.
    for (double value : run(forward, x, ZULG_SCALE_NONE)) EXPECT_FALSE(std::signbit(value)) << n;
    x[0] = 0.625;
    const Values flat = run(forward, x, ZULG_SCALE_NONE);
    for (std::size_t i = 0; i < flat.size(); ++i) EXPECT_EQ(flat[i], i % 2 == 0 ? 0.625 : 0) << n;
    x[0] = 0;
    x[1] = 1;
    const double near = tolerance(n, u());
    const Values spectrum = run(forward, x, ZULG_SCALE_NONE), h = run(hartley, x, ZULG_SCALE_NONE);
    for (int k = 0; k < n; ++k) {
      const auto cosine = static_cast<double>(cosq(2 * M_PIq * k / n));
      const auto sine = static_cast<double>(sinq(2 * M_PIq * k / n));
      EXPECT_NEAR(h[k], cosine + sine, near) << n << " " << k;
      if (2 * k > n) continue;
      EXPECT_NEAR(spectrum[2 * k], cosine, near) << n << " " << k;
      EXPECT_NEAR(spectrum[2 * k + 1], -sine, near) << n << " " << k;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Types, RealKernels, testing::Values("32f", "64f"),
                         [](const auto& info) { return info.param; });

TEST(RealKernelsByHand, Length2To4) {
  const Kernels kernels;
  const auto expect = [&](const char* name, int n, const Values& x, zulgScaleFlag flag,
                          const Values& y) {
    EXPECT_EQ(run(kernels.find(name, n), x, flag), y) << name << " " << n;
  };
  expect("zulgDFTFwd_RToCCS_N_32f", 2, {1, 1}, ZULG_SCALE_NONE, {2, 0, 0, 0});
  expect("zulgDFTFwd_RToPerm_N_64f", 4, {1, 2, 3, 4}, ZULG_SCALE_NONE, {10, -2, -2, 2});
  expect("zulgDFTInv_PackToR_N_64f", 2, {3, 1}, ZULG_SCALE_NONE, {4, 2});
  expect("zulgDFTInv_PermToR_N_32f", 4, {10, -2, -2, 2}, ZULG_SCALE_INV_BY_N, {1, 2, 3, 4});
  expect("zulgDFTInv_PermToR_N_32f", 4, {10, -2, -2, 2}, ZULG_SCALE_FWD_BY_N, {4, 8, 12, 16});
  expect("zulgHartley_N_32f", 4, {1, 2, 3, 4}, ZULG_SCALE_NONE, {10, -4, -2, 0});
  // Scaled in double precision by the single-precision factor, and rounded once.
  const float third = 0.33333334f, x[] = {0.1f, 0.7f, -0.4f};
  const double sum = static_cast<double>(x[1] + x[2]);
  const float re1 = static_cast<float>(third * (x[0] - 0.5 * sum));
  EXPECT_EQ(
      run(kernels.find("zulgDFTFwd_RToPack_N_32f", 3), {x[0], x[1], x[2]}, ZULG_SCALE_FWD_BY_N)[1],
      re1);
}

}  // namespace
