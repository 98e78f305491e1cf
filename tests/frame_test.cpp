// What kernels ask before their arithmetic, by itself.
#include "frame/kernel.h"

#include <gtest/gtest.h>

namespace {

TEST(Frame, TellsAlignedAddresses) {
  char* const aligned = reinterpret_cast<char*>(0x40);
  for (int a = 0; a < 32; ++a) {
    for (int b = 0; b < 32; ++b) {
      EXPECT_EQ(zulgen::is_aligned(aligned + a, aligned + b), a % 16 == 0 && b % 16 == 0)
          << a << " " << b;
    }
  }
  EXPECT_TRUE(zulgen::is_aligned(nullptr, nullptr));
}

zulgResult check(const void* source, const void* destination, zulgScaleFlag flag, float& factor) {
  return zulgen::check_arguments(source, destination, flag, 0.25f, 0.5f, factor);
}

TEST(Frame, ChecksPointersThenFlag) {
  static constexpr auto kFactors = zulgen::scale_factors(0.25f, 1.0f, 0.5f);
  EXPECT_EQ(kFactors.by_flag[ZULG_SCALE_FWD_BY_N], 0.25f);
  EXPECT_EQ(kFactors.by_flag[ZULG_SCALE_INV_BY_N], 1.0f);
  EXPECT_EQ(kFactors.by_flag[ZULG_SCALE_BY_SQRT_N], 0.5f);
  EXPECT_EQ(kFactors.by_flag[ZULG_SCALE_NONE], 1.0f);
  const float x = 0;
  for (zulgScaleFlag flag = -20; flag <= 20; ++flag) {
    const bool valid = flag == 1 || flag == 2 || flag == 4 || flag == 8;
    const zulgResult wanted = valid ? ZULG_OK : ZULG_ERR_FLAG;
    float factor = 0;
    EXPECT_EQ(check_arguments(&x, &x, flag, kFactors), wanted) << flag;
    EXPECT_EQ(check(&x, &x, flag, factor), wanted) << flag;
    EXPECT_EQ(factor, !valid ? 0 : flag == 8 ? 1 : flag == 4 ? 0.5f : 0.25f) << flag;
    EXPECT_EQ(check_arguments(nullptr, &x, flag, kFactors), ZULG_ERR_NULL_PTR) << flag;
    EXPECT_EQ(check(&x, nullptr, flag, factor), ZULG_ERR_NULL_PTR) << flag;
  }
}

}  // namespace
