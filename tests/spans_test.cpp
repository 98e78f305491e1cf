// The C++ layer: every template calls the function that its name and arguments say.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <random>
#include <set>
#include <string>
#include <vector>

#include "zulgen.hpp"

namespace {

using zulgen::Layout, zulgen::Scale;

// The C functions of one precision, by length at run time.
template <class Real>
struct C;
#define C_FUNCTIONS(Real, type)                                                          \
  template <>                                                                            \
  struct C<Real> {                                                                       \
    using Complex = zulg##type##c;                                                       \
    static constexpr auto forward = zulgDFTFwd_CToC_##type##c,                           \
                          inverse = zulgDFTInv_CToC_##type##c;                           \
    static constexpr auto hartley = zulgHartley_##type;                                  \
    static constexpr std::array real_forward = {                                         \
        zulgDFTFwd_RToCCS_##type, zulgDFTFwd_RToPack_##type, zulgDFTFwd_RToPerm_##type}; \
    static constexpr std::array real_inverse = {                                         \
        zulgDFTInv_CCSToR_##type, zulgDFTInv_PackToR_##type, zulgDFTInv_PermToR_##type}; \
  }
C_FUNCTIONS(float, 32f);
C_FUNCTIONS(double, 64f);

template <class Real, std::size_t kSize>
std::array<Real, kSize> random_numbers() {
  std::mt19937 random(kSize);
  std::array<Real, kSize> result;
  for (Real& x : result) x = std::uniform_real_distribution<Real>(-1, 1)(random);
  return result;
}

// Runs the template of a length, the same by the arrays' sizes, known when compiling and not, and
// the C function, and compares bits.
template <std::size_t kSize, class Source, class ByTemplate, class BySize, class ByName>
void expect_one(const Source& source, ByTemplate by_template, BySize by_size, ByName by_name) {
  using Array = std::array<typename Source::value_type, kSize>;
  Array wanted{};
  EXPECT_EQ(by_name(source.data(), wanted.data()), ZULG_OK);
  const auto expect = [&](auto function, const auto& from, auto to) {
    EXPECT_EQ(function(from, to), ZULG_OK);
    EXPECT_EQ(std::memcmp(to.data(), wanted.data(), sizeof wanted), 0) << kSize;
  };
  const std::vector unsized(source.begin(), source.end());
  const std::vector<typename Source::value_type> unsized_result(kSize);
  expect(by_template, source, Array{});
  expect(by_size, source, Array{});
  expect(by_size, unsized, unsized_result);
  if constexpr (kSize == 8) {
    expect(by_template, unsized, unsized_result);
    expect(by_size, source, unsized_result);
    expect(by_size, unsized, Array{});
  }
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
  std::array<double, 8> fixed{};
  const std::vector<std::complex<float>> points(65);
  std::vector<std::complex<float>> same(65), fewer(64);
  EXPECT_EQ(zulgen::hartley(samples, other, Scale::kNone), ZULG_ERR_SIZE);
  EXPECT_EQ(zulgen::hartley(fixed, other, Scale::kNone), ZULG_ERR_SIZE);
  EXPECT_EQ(zulgen::hartley<8>(samples, other, Scale::kNone), ZULG_ERR_SIZE);
  EXPECT_EQ(zulgen::hartley<9>(other, std::span(other).first(8), Scale::kNone), ZULG_ERR_SIZE);
  EXPECT_EQ(zulgen::real_dft_forward<Layout::kCcs>(samples, other, Scale::kNone), ZULG_ERR_SIZE);
  EXPECT_EQ((zulgen::real_dft_forward<9, Layout::kPack>(samples, std::span(other).first(8),
                                                        Scale::kNone)),
            ZULG_ERR_SIZE);
  EXPECT_EQ(zulgen::real_dft_inverse<Layout::kPack>(samples, other, Scale::kNone), ZULG_ERR_SIZE);
  EXPECT_EQ(zulgen::dft_forward(points, same, Scale::kNone), ZULG_ERR_SIZE);
  EXPECT_EQ(zulgen::dft_inverse(points, fewer, Scale::kNone), ZULG_ERR_SIZE);
  // A size whose lower 32 bits are a length. Nothing is touched, so nothing has to be there.
  if constexpr (sizeof(std::size_t) > 4) {
    const std::span<double> huge(other.data(), (std::size_t{1} << 32) + 8);
    EXPECT_EQ(zulgen::hartley(huge, huge, Scale::kNone), ZULG_ERR_SIZE);
  }
  EXPECT_EQ(other, std::vector<double>(9, 0.5));
}

// Calls that don't compile, beside those that do.
template <class T, std::size_t N>
using Fixed = std::array<T, N>&;
using Point = std::complex<float>;
#define CALL(name, ...)                   \
  template <class Src, class Dst>         \
  concept name = requires(Src x, Dst y) { \
    __VA_ARGS__;                          \
  }
CALL(Complex, zulgen::dft_forward(x, y, Scale::kNone));
CALL(Inverse12, zulgen::dft_inverse<12>(x, y, Scale::kNone));
CALL(HartleyOf, zulgen::hartley(x, y, Scale::kNone));
CALL(Walsh, zulgen::walsh_hadamard(x, y, Scale::kNone));
CALL(Planned, std::declval<zulgen::Dct4<float>&>()(x, y));
CALL(ToCcs, zulgen::real_dft_forward<Layout::kCcs>(x, y, Scale::kNone);
     zulgen::real_dft_inverse<Layout::kCcs>(y, x, Scale::kNone));

static_assert(Complex<Fixed<Point, 12>, Fixed<Point, 12>> &&
              Complex<Point (&)[2], std::span<Point>>);
static_assert(!Complex<std::span<Point, 12>, std::span<Point, 11>>);
static_assert(!Complex<Fixed<Point, 65>, Fixed<Point, 65>> && !Complex<Point (&)[1], Point (&)[1]>);
static_assert(!Complex<Fixed<Point, 8>, Fixed<const Point, 8>> &&
              !Complex<Fixed<Point, 8>, Fixed<std::complex<double>, 8>> &&
              !Complex<Fixed<float, 8>, Fixed<float, 8>>);
static_assert(Inverse12<std::vector<Point>, Fixed<Point, 12>> &&
              !Inverse12<std::vector<Point>, Fixed<Point, 13>>);
static_assert(HartleyOf<Fixed<double, 2>, Fixed<double, 2>> &&
              !HartleyOf<Fixed<double, 2>, Fixed<double, 3>> &&
              !HartleyOf<Fixed<double, 65>, std::span<double>>);
static_assert(Walsh<Fixed<float, 8192>, Fixed<float, 8192>> &&
              !Walsh<Fixed<float, 24>, Fixed<float, 24>> &&
              !Walsh<Fixed<float, 1>, std::span<float>>);
static_assert(Planned<Fixed<float, 64>, Fixed<float, 64>> &&
              !Planned<Fixed<float, 64>, Fixed<float, 32>> &&
              !Planned<Fixed<double, 64>, Fixed<double, 64>>);
static_assert(ToCcs<Fixed<float, 6>, Fixed<float, 8>> && ToCcs<Fixed<float, 7>, Fixed<float, 8>> &&
              !ToCcs<Fixed<float, 6>, Fixed<float, 6>> &&
              !ToCcs<Fixed<float, 65>, Fixed<float, 66>>);
static_assert(ToCcs<std::span<float>, Fixed<float, 66>> &&
              !ToCcs<std::span<float>, Fixed<float, 7>> &&
              !ToCcs<std::span<float>, Fixed<float, 68>>);

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

// In memory of the caller's wherever it lies, as long as it is enough there.
TEST(Spans, ADct4PlanInTheCallersMemory) {
  std::vector<float> x(32, 1), wanted(32), y(32);
  zulgen::Dct4<float> plan;
  ASSERT_EQ(plan.plan(32), ZULG_OK);
  ASSERT_EQ(plan(x, wanted), ZULG_OK);
  const std::size_t bytes = plan.plan_bytes(32);
  alignas(32) std::byte memory[4096];
  ASSERT_LE(bytes + 64, sizeof memory);
  for (std::size_t offset = 0; offset < 32; ++offset) {
    std::fill(std::begin(memory), std::end(memory), std::byte{0x5a});
    ASSERT_EQ(plan.plan(32, std::span(memory).subspan(offset, bytes)), ZULG_OK);
    EXPECT_EQ(plan(x, y), ZULG_OK);
    EXPECT_EQ(y, wanted);
    EXPECT_EQ(memory[offset + bytes], std::byte{0x5a}) << offset;
    if (offset > 0) {
      EXPECT_EQ(memory[offset - 1], std::byte{0x5a}) << offset;
    }
  }
  EXPECT_EQ(plan.plan(32, std::span(memory).subspan(1, bytes - 1)), ZULG_ERR_SIZE);
  EXPECT_EQ(plan(x, y), ZULG_ERR_SIZE);
  for (const std::size_t n : {0, 1, 33, 48, 1 << 27, 1 << 29, 1 << 30}) {
    EXPECT_EQ(plan.plan_bytes(n), 0u);
    EXPECT_EQ(plan.plan(n, memory), ZULG_ERR_SIZE);
  }
  EXPECT_FALSE(zulgen::Dct4<double>::has_length(67108864));
}

TEST(Spans, ResultsHaveTexts) {
  std::set<std::string> texts;
  for (const int result :
       {ZULG_OK, ZULG_ERR_CONTEXT, ZULG_ERR_SIZE, ZULG_ERR_NULL_PTR, ZULG_ERR_FLAG, 1})
    texts.insert(zulgen::result_text(result));
  EXPECT_EQ(texts.size(), 6u);
}

}  // namespace
