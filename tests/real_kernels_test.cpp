// What the real kernels of one length have to do with one another.
#include <gtest/gtest.h>

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

TEST_P(RealKernels, KnowImpulsesAndZeros) {
  for (int n = 2; n <= 64; ++n) {
    const GraphRuns forward = find("zulgDFTFwd_RToCCS", n);
    Values x(n);
    // Sign flips subtract from +0.0.
    for (double value : run(forward, x, ZULG_SCALE_NONE)) EXPECT_FALSE(std::signbit(value)) << n;
    x[0] = 0.625;
    const Values flat = run(forward, x, ZULG_SCALE_NONE);
    for (std::size_t i = 0; i < flat.size(); ++i) EXPECT_EQ(flat[i], i % 2 == 0 ? 0.625 : 0) << n;
  }
}

INSTANTIATE_TEST_SUITE_P(Types, RealKernels, testing::Values("32f", "64f"),
                         [](const auto& info) { return info.param; });

}  // namespace
