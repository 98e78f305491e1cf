// The C++ layer: every template calls the function that its name and arguments say.
#include <gtest/gtest.h>

#include <array>
#include <cstring>
#include <random>
#include <vector>

#include "zulgen.hpp"

namespace {

using zulgen::Layout, zulgen::Scale;

// The C functions of one precision, by length at run time.
template <class Real>
struct C;
template <>
struct C<float> {
  using Complex = zulg32fc;
  static constexpr auto forward = zulgDFTFwd_CToC_32fc, inverse = zulgDFTInv_CToC_32fc;
  static constexpr auto hartley = zulgHartley_32f;
  static constexpr std::array real_forward = {zulgDFTFwd_RToCCS_32f, zulgDFTFwd_RToPack_32f,
                                              zulgDFTFwd_RToPerm_32f};
  static constexpr std::array real_inverse = {zulgDFTInv_CCSToR_32f, zulgDFTInv_PackToR_32f,
                                              zulgDFTInv_PermToR_32f};
};
template <>
struct C<double> {
  using Complex = zulg64fc;
  static constexpr auto forward = zulgDFTFwd_CToC_64fc, inverse = zulgDFTInv_CToC_64fc;
  static constexpr auto hartley = zulgHartley_64f;
  static constexpr std::array real_forward = {zulgDFTFwd_RToCCS_64f, zulgDFTFwd_RToPack_64f,
                                              zulgDFTFwd_RToPerm_64f};
  static constexpr std::array real_inverse = {zulgDFTInv_CCSToR_64f, zulgDFTInv_PackToR_64f,
                                              zulgDFTInv_PermToR_64f};
};

template <class Real, std::size_t kSize>
std::array<Real, kSize> random_numbers() {
  std::mt19937 random(kSize);
  std::array<Real, kSize> result;
  for (Real& x : result) x = std::uniform_real_distribution<Real>(-1, 1)(random);
  return result;
}

// Runs the template, the same by length at run time, and the C function, and compares bits.
template <std::size_t kSize, class Source, class ByTemplate, class ByLength, class ByName>
void expect_one(const Source& source, ByTemplate by_template, ByLength by_length, ByName by_name) {
  std::array<typename Source::value_type, kSize> a{}, b{}, c{};
  EXPECT_EQ(by_template(source, a), ZULG_OK);
  EXPECT_EQ(by_length(source, b), ZULG_OK);
  EXPECT_EQ(by_name(source.data(), c.data()), ZULG_OK);
  EXPECT_EQ(std::memcmp(a.data(), c.data(), sizeof c), 0) << kSize;
  EXPECT_EQ(std::memcmp(b.data(), c.data(), sizeof c), 0) << kSize;
}

#define SPANS(call) [](const auto& x, auto& y) { return call(x, y, Scale::kForwardByN); }
#define POINTERS(function, Sample, n)                                                    \
  [](const auto* x, auto* y) {                                                           \
    return function(reinterpret_cast<const Sample*>(x), reinterpret_cast<Sample*>(y), n, \
                    ZULG_SCALE_FWD_BY_N);                                                \
  }

template <class Real, std::size_t N, Layout kLayout>
void check_layout() {
  constexpr std::size_t kSize = zulgen::spectrum_size(kLayout, N);
  expect_one<kSize>(random_numbers<Real, N>(), SPANS((zulgen::real_dft_forward<N, kLayout>)),
                    SPANS(zulgen::real_dft_forward<kLayout>),
                    POINTERS(C<Real>::real_forward[static_cast<int>(kLayout)], Real, N));
  expect_one<N>(random_numbers<Real, kSize>(), SPANS((zulgen::real_dft_inverse<N, kLayout>)),
                SPANS(zulgen::real_dft_inverse<kLayout>),
                POINTERS(C<Real>::real_inverse[static_cast<int>(kLayout)], Real, N));
}

template <class Real, std::size_t N>
void check_length() {
  using Complex = typename C<Real>::Complex;
  const auto parts = random_numbers<Real, 2 * N>();
  std::array<std::complex<Real>, N> points;
  for (std::size_t i = 0; i < N; ++i) points[i] = {parts[2 * i], parts[2 * i + 1]};
  expect_one<N>(points, SPANS(zulgen::dft_forward<N>), SPANS(zulgen::dft_forward),
                POINTERS(C<Real>::forward, Complex, N));
  expect_one<N>(points, SPANS(zulgen::dft_inverse<N>), SPANS(zulgen::dft_inverse),
                POINTERS(C<Real>::inverse, Complex, N));
  expect_one<N>(random_numbers<Real, N>(), SPANS(zulgen::hartley<N>), SPANS(zulgen::hartley),
                POINTERS(C<Real>::hartley, Real, N));
  check_layout<Real, N, Layout::kCcs>();
  check_layout<Real, N, Layout::kPack>();
  check_layout<Real, N, Layout::kPerm>();
}

template <class Real, std::size_t... kFromZero>
void check_lengths(std::index_sequence<kFromZero...>) {
  (check_length<Real, kFromZero + 2>(), ...);
}

TEST(Spans, ReachTheFunctionOfTheirArguments) {
  check_lengths<float>(std::make_index_sequence<63>());
  check_lengths<double>(std::make_index_sequence<63>());
}

TEST(Spans, RefuseSizesThatDontFit) {
  const std::vector<double> samples(8, 1);
  std::vector<double> other(9, 0.5);
  const std::vector<std::complex<float>> points(65);
  std::vector<std::complex<float>> same(65), fewer(64);
  EXPECT_EQ(zulgen::hartley(samples, other, Scale::kNone), ZULG_ERR_SIZE);
  EXPECT_EQ(zulgen::real_dft_forward<Layout::kCcs>(samples, other, Scale::kNone), ZULG_ERR_SIZE);
  EXPECT_EQ(zulgen::real_dft_inverse<Layout::kPack>(samples, other, Scale::kNone), ZULG_ERR_SIZE);
  EXPECT_EQ(zulgen::dft_forward(points, same, Scale::kNone), ZULG_ERR_SIZE);
  EXPECT_EQ(zulgen::dft_inverse(points, fewer, Scale::kNone), ZULG_ERR_SIZE);
  EXPECT_EQ(other, std::vector<double>(9, 0.5));
}

TEST(Spans, WalshHadamardTakesItsOrderFromTheSize) {
  for (const std::size_t n : {2, 128, 256}) {
    std::vector<float> x(n), y(n), z(n);
    for (std::size_t i = 0; i < n; ++i) x[i] = static_cast<float>(i * i % 17);
    std::vector<std::byte> memory(zulgen::work_bytes<float>(n) + 1);
    // Wherever the buffer lies.
    const auto work = std::span(memory).subspan(1);
    EXPECT_EQ(zulgen::walsh_hadamard(x, y, Scale::kBySqrtN, work), ZULG_OK);
    EXPECT_EQ(zulgen::walsh_hadamard(y, z, Scale::kBySqrtN, work), ZULG_OK);
    for (std::size_t i = 0; i < n; ++i) EXPECT_NEAR(z[i], x[i], 1e-4) << n;
    EXPECT_EQ(zulgen::walsh_hadamard(x, z, Scale::kBySqrtN), n < 256 ? ZULG_OK : ZULG_ERR_SIZE);
    if (n < 256) {
      EXPECT_EQ(z, y);
    }
  }
  std::vector<double> x(256, 1), y(256, 0.5);
  std::vector<std::byte> small(zulgen::work_bytes<double>(256) - 16);
  EXPECT_EQ(zulgen::walsh_hadamard(x, y, Scale::kNone, small), ZULG_ERR_SIZE);
  EXPECT_EQ(zulgen::walsh_hadamard(std::span(x).first(3), std::span(y).first(3), Scale::kNone),
            ZULG_ERR_SIZE);
  EXPECT_EQ(y[0], 0.5);
}

TEST(Spans, ADct4PlanMovesAndEnds) {
  std::vector<double> x(64), y(64, 0.5), z(64);
  for (std::size_t i = 0; i < x.size(); ++i) x[i] = static_cast<double>(i * i % 17);
  zulgen::Dct4<double> first;
  EXPECT_EQ(first(x, y), ZULG_ERR_SIZE);
  EXPECT_EQ(first.plan(65), ZULG_ERR_SIZE);
  ASSERT_EQ(first.plan(64), ZULG_OK);
  zulgen::Dct4<double> second = std::move(first);
  EXPECT_EQ(first.size(), 0u);
  EXPECT_EQ(second.size(), 64u);
  EXPECT_EQ(first(x, y), ZULG_ERR_SIZE);
  EXPECT_EQ(y[0], 0.5);
  // Its own inverse, up to the factor 2 / n.
  EXPECT_EQ(second(x, y), ZULG_OK);
  EXPECT_EQ(second(y, z), ZULG_OK);
  for (std::size_t i = 0; i < x.size(); ++i) EXPECT_NEAR(z[i] * 2 / 64, x[i], 1e-12);
  EXPECT_EQ(second(x, std::span(y).first(63)), ZULG_ERR_SIZE);
}

}  // namespace
