// What the C++ layer asks of the arrays of a call: their types, and their sizes as far as the
// compiler knows them. Include zulgen.hpp.
#ifndef ZULGEN_EXTENTS_HPP
#define ZULGEN_EXTENTS_HPP

#include <bit>
#include <complex>
#include <concepts>
#include <cstddef>
#include <ranges>
#include <span>
#include <type_traits>
#include <utility>

namespace zulgen {

// How the spectrum of real samples is packed: zulgen/dft_real_forward.h.
enum class Layout { kCcs, kPack, kPerm };

// The number of elements that the spectrum of n real samples has.
constexpr std::size_t spectrum_size(Layout layout, std::size_t n) {
  return layout == Layout::kCcs ? n / 2 * 2 + 2 : n;
}

namespace detail {

inline constexpr std::size_t kUnknown = std::dynamic_extent;

template <class Array>
using SpanOf = decltype(std::span(std::declval<Array&>()));
template <class Array>
using ValueOf = typename SpanOf<Array>::value_type;
template <class Array>
using PartOf = typename ValueOf<Array>::value_type;  // of a complex number

// The size that the array's type tells, if any.
template <class Array>
inline constexpr std::size_t kExtent = SpanOf<Array>::extent;

// The size that is known of N, or else of an array.
template <std::size_t N, class Array>
inline constexpr std::size_t kLength = N != kUnknown ? N : kExtent<Array>;
template <std::size_t N, class Src, class Dst>
inline constexpr std::size_t kSize = kLength<kLength<N, Src>, Dst>;

// Whether these may be one size.
constexpr bool agree(std::size_t a, std::size_t b) {
  return a == kUnknown || b == kUnknown || a == b;
}
constexpr bool agree(std::size_t a, std::size_t b, std::size_t c) {
  return agree(a, b) && agree(a, c) && agree(b, c);
}

// Whether this may be the size of a spectrum of so many samples.
constexpr bool fits_spectrum(std::size_t size, Layout layout, std::size_t n, std::size_t samples) {
  for (std::size_t length = 2; length <= 64; ++length) {
    if (agree(length, n, samples) && agree(size, spectrum_size(layout, length))) return true;
  }
  return false;
}

}  // namespace detail

// The concepts below are what a compiler names when it refuses a call.

// A std::array, C array, std::vector or std::span: anything that a span can be made of.
template <class Array>
concept ContiguousArray = requires(Array& array) {
  std::span(array);
};

// One that can be written, and outlives the call.
template <class Array>
concept WritableArray = ContiguousArray<Array> && std::ranges::borrowed_range<Array> &&
    !std::is_const_v<typename detail::SpanOf<Array>::element_type>;

template <class A, class B>
concept SameSamples = std::same_as<detail::ValueOf<A>, detail::ValueOf<B>>;

template <class Value>
concept FloatOrDouble = std::same_as<Value, float> || std::same_as<Value, double>;

template <class Src, class Dst>
concept RealArrays = ContiguousArray<Src> && WritableArray<Dst> && SameSamples<Src, Dst> &&
    FloatOrDouble<detail::ValueOf<Src>>;

template <class Src, class Dst>
concept ComplexArrays = ContiguousArray<Src> && WritableArray<Dst> && SameSamples<Src, Dst> &&
    (std::same_as<detail::ValueOf<Src>, std::complex<float>> ||
     std::same_as<detail::ValueOf<Src>, std::complex<double>>);

// Both arrays have N samples, or the same number if that isn't given.
template <std::size_t N, class Src, class Dst>
concept EqualSizes = detail::agree(N, detail::kExtent<Src>, detail::kExtent<Dst>);

template <std::size_t N>
concept LengthFrom2To64 = N == detail::kUnknown || (2 <= N && N <= 64);

template <std::size_t N>
concept PowerOfTwoFrom2To8192 = N == detail::kUnknown ||
                                (2 <= N && N <= 8192 && std::has_single_bit(N));

// N samples, or as many as the array has, 2 to 64, and their packed spectrum.
template <std::size_t N, class Samples, class Spectrum, Layout kLayout>
concept SamplesAndSpectrum = detail::fits_spectrum(detail::kExtent<Spectrum>, kLayout, N,
                                                   detail::kExtent<Samples>);

}  // namespace zulgen

#endif
