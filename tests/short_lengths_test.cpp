// Lengths 2 to 6 of the single-precision complex DFT have their arithmetic fixed operation by
// operation. Here it stands written out, once, by hand.
#include <gtest/gtest.h>

#include <cstring>
#include <functional>
#include <random>

#include "zulgen.h"

namespace {

struct Pair {
  float re, im;
};
Pair operator+(Pair a, Pair b) { return {a.re + b.re, a.im + b.im}; }
Pair operator-(Pair a, Pair b) { return {a.re - b.re, a.im - b.im}; }

// sign is +1 for the forward direction, -1 for the inverse one.
void dft2(const Pair* x, Pair* y, int) {
  y[0] = x[0] + x[1];
  y[1] = x[0] - x[1];
}

void dft3(const Pair* x, Pair* y, int sign) {
  const Pair s = x[1] + x[2], d = x[1] - x[2];
  const Pair t = {static_cast<float>(x[0].re - s.re * 0.5),
                  static_cast<float>(x[0].im - s.im * 0.5)};
  const float u = static_cast<float>(d.im * 0.8660254037844386);
  const float v = static_cast<float>(d.re * 0.8660254037844386);
  y[0] = x[0] + s;
  y[sign > 0 ? 1 : 2] = {t.re + u, t.im - v};
  y[sign > 0 ? 2 : 1] = {t.re - u, t.im + v};
}

void dft4(const Pair* x, Pair* y, int sign) {
  const Pair a = x[0] + x[2], b = x[0] - x[2], c = x[1] + x[3], d = x[1] - x[3];
  y[0] = a + c;
  y[2] = a - c;
  y[sign > 0 ? 1 : 3] = {b.re + d.im, b.im - d.re};
  y[sign > 0 ? 3 : 1] = {b.re - d.im, b.im + d.re};
}

void dft5(const Pair* x, Pair* y, int sign) {
  const double c1 = 0.30901699437494745, c2 = 0.8090169943749475;
  const double s1 = 0.9510565162951535, s2 = 0.5877852522924731;
  const Pair a = x[1] + x[4], b = x[3] + x[2], f = x[1] - x[4], e = x[3] - x[2];
  y[0] = (x[0] + a) + b;
  const float p1 = (c1 * a.re + x[0].re) - c2 * b.re, p2 = (x[0].re - c2 * a.re) + c1 * b.re;
  const float q1 = (c1 * a.im + x[0].im) - c2 * b.im, q2 = (x[0].im - c2 * a.im) + c1 * b.im;
  const float r1 = s1 * f.im - s2 * e.im, r2 = s2 * f.im + s1 * e.im;
  const float t1 = s2 * e.re - s1 * f.re, t2 = s2 * f.re + s1 * e.re;
  y[sign > 0 ? 1 : 4] = {p1 + r1, q1 + t1};
  y[sign > 0 ? 4 : 1] = {p1 - r1, q1 - t1};
  y[sign > 0 ? 2 : 3] = {p2 + r2, q2 - t2};
  y[sign > 0 ? 3 : 2] = {p2 - r2, q2 + t2};
}

// The three-point butterfly in single precision throughout.
void dft3_single(const Pair* x, Pair* y, int sign) {
  const Pair s = x[1] + x[2], d = x[1] - x[2];
  const Pair t = {x[0].re - s.re * 0.5f, x[0].im - s.im * 0.5f};
  const float u = d.im * 0.8660254f, v = d.re * 0.8660254f;
  y[0] = x[0] + s;
  y[sign > 0 ? 1 : 2] = {t.re + u, t.im - v};
  y[sign > 0 ? 2 : 1] = {t.re - u, t.im + v};
}

// The pairs (0, 3), (2, 5), (4, 1) first; the sums and the differences then have the conjugate
// root of the direction.
void dft6(const Pair* x, Pair* y, int sign) {
  const Pair f[3] = {x[0] + x[3], x[2] + x[5], x[4] + x[1]};
  const Pair g[3] = {x[0] - x[3], x[2] - x[5], x[4] - x[1]};
  Pair sums[3], differences[3];
  dft3_single(f, sums, -sign);
  dft3_single(g, differences, -sign);
  y[0] = sums[0], y[2] = sums[1], y[4] = sums[2];
  y[3] = differences[0], y[5] = differences[1], y[1] = differences[2];
}

struct Case {
  int length;
  zulgResult (*forward)(const zulg32fc*, zulg32fc*, zulgScaleFlag);
  zulgResult (*inverse)(const zulg32fc*, zulg32fc*, zulgScaleFlag);
  std::function<void(const Pair*, Pair*, int)> by_hand;
  float by_n, by_sqrt_n;
};

TEST(ShortLengths, HaveTheStatedRoundings) {
  const Case cases[] = {
      {2, zulgDFTFwd_CToC_2_32fc, zulgDFTInv_CToC_2_32fc, dft2, 0.5f, 0.70710677f},
      {3, zulgDFTFwd_CToC_3_32fc, zulgDFTInv_CToC_3_32fc, dft3, 0.33333334f, 0.57735026f},
      {4, zulgDFTFwd_CToC_4_32fc, zulgDFTInv_CToC_4_32fc, dft4, 0.25f, 0.5f},
      {5, zulgDFTFwd_CToC_5_32fc, zulgDFTInv_CToC_5_32fc, dft5, 0.2f, 0.4472136f},
      {6, zulgDFTFwd_CToC_6_32fc, zulgDFTInv_CToC_6_32fc, dft6, 0.16666667f, 0.4082483f},
  };
  std::mt19937 random(7);
  std::uniform_real_distribution<float> uniform(-1, 1);
  for (const Case& c : cases) {
    for (int round = 0; round < 1000; ++round) {
      Pair x[6], by_hand[6];
      zulg32fc result[6];
      for (Pair& sample : x) sample = {uniform(random), uniform(random)};
      const int sign = round % 2 == 0 ? 1 : -1;
      const zulgScaleFlag flag = 1 << round / 2 % 4;
      const float s = flag == ZULG_SCALE_BY_SQRT_N                                     ? c.by_sqrt_n
                      : flag == (sign > 0 ? ZULG_SCALE_FWD_BY_N : ZULG_SCALE_INV_BY_N) ? c.by_n
                                                                                       : 1.0f;
      const auto* source = reinterpret_cast<const zulg32fc*>(x);
      ASSERT_EQ((sign > 0 ? c.forward : c.inverse)(source, result, flag), ZULG_OK);
      c.by_hand(x, by_hand, sign);
      for (int k = 0; k < c.length; ++k) {
        EXPECT_EQ(result[k].re, s * by_hand[k].re) << c.length << " " << k << " flag " << flag;
        EXPECT_EQ(result[k].im, s * by_hand[k].im) << c.length << " " << k << " flag " << flag;
      }
    }
  }
}

TEST(Version, IsTheOneRecord) {
  const zulgLibVersion* version = zulgenGetLibVersion();
  EXPECT_EQ(version, zulgenGetLibVersion());
  EXPECT_EQ(version->major, 6);
  EXPECT_EQ(version->minor, 1);
  EXPECT_EQ(version->majorBuild, 137);
  EXPECT_EQ(version->build, 336);
  EXPECT_EQ(std::memcmp(version->targetCode, "s8\0\0", 4), 0);
  EXPECT_STREQ(version->name, "libzulgens8.so.6.1");
  EXPECT_STREQ(version->version, "6.1 build 137.56");
  EXPECT_STREQ(version->buildDate, "Mar 17 2010");
}

}  // namespace
