// What the real kernels of one length have to do with one another.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>

#include "tests/graph_runs.h"

namespace {

using Values = std::vector<double>;

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
  static GraphRuns find(const std::string& name, int length) {
    return runs_of(name + "_" + std::to_string(length) + "_" + GetParam());
  }
};

TEST_P(RealKernels, LayoutsAreMovesOfOneAnother) {
  for (int n = 2; n <= 64; ++n) {
    SCOPED_TRACE(n);
    for (const auto data : {harness::Data::kUniform, harness::Data::kNotFinite}) {
      const GraphRuns ccs = find("zulgDFTFwd_RToCCS", n);
      const Values x = make_input(ccs.shape(), data, n);
      const Values spectrum = ccs.run(x, ZULG_SCALE_BY_SQRT_N);
      const Values pack = pack_of_ccs(spectrum, n), perm = perm_of_pack(pack);
      // The slots that hold no part of a bin, whatever comes in.
      Values with_noise = spectrum;
      for (int slot : {1, n + 1}) {
        if (slot == n + 1 && n % 2 == 1) continue;
        EXPECT_EQ(spectrum[slot], 0);
        EXPECT_FALSE(std::signbit(spectrum[slot]));
        with_noise[slot] = std::numeric_limits<double>::quiet_NaN();
      }
      const Values back = find("zulgDFTInv_CCSToR", n).run(spectrum, ZULG_SCALE_INV_BY_N);
      const auto expect = [&](const char* name, const Values& from, zulgScaleFlag flag,
                              const Values& to) {
        EXPECT_TRUE(harness::same_bits(find(name, n).run(from, flag), to)) << name;
      };
      expect("zulgDFTFwd_RToPack", x, ZULG_SCALE_BY_SQRT_N, pack);
      expect("zulgDFTFwd_RToPerm", x, ZULG_SCALE_BY_SQRT_N, perm);
      expect("zulgDFTInv_CCSToR", with_noise, ZULG_SCALE_INV_BY_N, back);
      expect("zulgDFTInv_PackToR", pack, ZULG_SCALE_INV_BY_N, back);
      expect("zulgDFTInv_PermToR", perm, ZULG_SCALE_INV_BY_N, back);
    }
  }
}

TEST_P(RealKernels, KnowImpulsesAndZeros) {
  for (int n = 2; n <= 64; ++n) {
    const GraphRuns forward = find("zulgDFTFwd_RToCCS", n);
    Values x(n);
    // Sign flips subtract from +0.0.
    for (double value : forward.run(x, ZULG_SCALE_NONE)) EXPECT_FALSE(std::signbit(value)) << n;
    x[0] = 0.625;
    const Values flat = forward.run(x, ZULG_SCALE_NONE);
    for (std::size_t i = 0; i < flat.size(); ++i) EXPECT_EQ(flat[i], i % 2 == 0 ? 0.625 : 0) << n;
  }
}

INSTANTIATE_TEST_SUITE_P(Types, RealKernels, testing::Values("32f", "64f"),
                         [](const auto& info) { return info.param; });

}  // namespace
