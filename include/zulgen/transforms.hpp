// The transforms on arrays: include zulgen.hpp.
#ifndef ZULGEN_TRANSFORMS_HPP
#define ZULGEN_TRANSFORMS_HPP

#include <bit>
#include <cstddef>
#include <memory>
#include <span>

#include "zulgen.h"
#include "zulgen/extents.hpp"
#include "zulgen/kernel_tables.hpp"

namespace zulgen {

// The factor that a result is multiplied by: zulgen/types.h.
enum class Scale : zulgScaleFlag {
  kForwardByN = ZULG_SCALE_FWD_BY_N,
  kInverseByN = ZULG_SCALE_INV_BY_N,
  kBySqrtN = ZULG_SCALE_BY_SQRT_N,
  kNone = ZULG_SCALE_NONE,
};

namespace detail {

// Complex numbers of the standard library and of the C functions are two reals in a row.
template <class Sample>
zulgResult call(Kernel<Sample> kernel, const void* src, void* dst, std::size_t, Scale scale) {
  return kernel(static_cast<const Sample*>(src), static_cast<Sample*>(dst),
                static_cast<zulgScaleFlag>(scale));
}
template <class Sample>
zulgResult call(Entry<Sample> entry, const void* src, void* dst, std::size_t length, Scale scale) {
  if (length > 64) return ZULG_ERR_SIZE;  // it may be beyond an int
  return entry(static_cast<const Sample*>(src), static_cast<Sample*>(dst), static_cast<int>(length),
               static_cast<zulgScaleFlag>(scale));
}

// From kSize samples to as many, if the sizes that the compiler doesn't know are that.
template <std::size_t kSize>
zulgResult transform(auto function, auto src, auto dst, Scale scale) {
  if (src.size() != dst.size() || !agree(kSize, src.size())) return ZULG_ERR_SIZE;
  return call(function, src.data(), dst.data(), src.size(), scale);
}

}  // namespace detail

// Complex DFT of N points: zulgen/dft_complex.h.

template <std::size_t N = detail::kUnknown, class Src, class Dst>
requires ComplexArrays<Src, Dst> && EqualSizes<N, Src, Dst> &&
    LengthFrom2To64<detail::kSize<N, Src, Dst>>
[[nodiscard]] zulgResult dft_forward(Src&& src, Dst&& dst, Scale scale) noexcept {
  constexpr std::size_t kSize = detail::kSize<N, Src, Dst>;
  return detail::transform<kSize>(
      detail::find<kSize>(detail::Functions<detail::PartOf<Src>>::kForward), std::span(src),
      std::span(dst), scale);
}

template <std::size_t N = detail::kUnknown, class Src, class Dst>
requires ComplexArrays<Src, Dst> && EqualSizes<N, Src, Dst> &&
    LengthFrom2To64<detail::kSize<N, Src, Dst>>
[[nodiscard]] zulgResult dft_inverse(Src&& src, Dst&& dst, Scale scale) noexcept {
  constexpr std::size_t kSize = detail::kSize<N, Src, Dst>;
  return detail::transform<kSize>(
      detail::find<kSize>(detail::Functions<detail::PartOf<Src>>::kInverse), std::span(src),
      std::span(dst), scale);
}

// Hartley transform of N samples: zulgen/hartley.h.

template <std::size_t N = detail::kUnknown, class Src, class Dst>
requires RealArrays<Src, Dst> && EqualSizes<N, Src, Dst> &&
    LengthFrom2To64<detail::kSize<N, Src, Dst>>
[[nodiscard]] zulgResult hartley(Src&& src, Dst&& dst, Scale scale) noexcept {
  constexpr std::size_t kSize = detail::kSize<N, Src, Dst>;
  return detail::transform<kSize>(
      detail::find<kSize>(detail::Functions<detail::ValueOf<Src>>::kHartley), std::span(src),
      std::span(dst), scale);
}

// Real DFT of N samples to a packed spectrum, and back: zulgen/dft_real_forward.h and
// zulgen/dft_real_inverse.h. Without N, the length is the number of samples.

template <std::size_t N, Layout kLayout, class Src, class Dst>
requires RealArrays<Src, Dst> && SamplesAndSpectrum<N, Src, Dst, kLayout>
[[nodiscard]] zulgResult real_dft_forward(Src&& src, Dst&& dst, Scale scale) noexcept {
  constexpr auto& kFamily = detail::Functions<detail::ValueOf<Src>>::kRealForward;
  constexpr std::size_t kLength = detail::kLength<N, Src>;
  const std::span samples(src);
  const std::span spectrum(dst);
  if (!detail::agree(kLength, samples.size())) return ZULG_ERR_SIZE;
  if (spectrum.size() != spectrum_size(kLayout, samples.size())) return ZULG_ERR_SIZE;
  return detail::call(detail::find<kLength>(kFamily[static_cast<int>(kLayout)]), samples.data(),
                      spectrum.data(), samples.size(), scale);
}
template <Layout kLayout, class Src, class Dst>
requires RealArrays<Src, Dst> && SamplesAndSpectrum<detail::kUnknown, Src, Dst, kLayout>
[[nodiscard]] zulgResult real_dft_forward(Src&& src, Dst&& dst, Scale scale) noexcept {
  return real_dft_forward<detail::kUnknown, kLayout>(src, dst, scale);
}

template <std::size_t N, Layout kLayout, class Src, class Dst>
requires RealArrays<Src, Dst> && SamplesAndSpectrum<N, Dst, Src, kLayout>
[[nodiscard]] zulgResult real_dft_inverse(Src&& src, Dst&& dst, Scale scale) noexcept {
  constexpr auto& kFamily = detail::Functions<detail::ValueOf<Src>>::kRealInverse;
  constexpr std::size_t kLength = detail::kLength<N, Dst>;
  const std::span spectrum(src);
  const std::span samples(dst);
  if (!detail::agree(kLength, samples.size())) return ZULG_ERR_SIZE;
  if (spectrum.size() != spectrum_size(kLayout, samples.size())) return ZULG_ERR_SIZE;
  return detail::call(detail::find<kLength>(kFamily[static_cast<int>(kLayout)]), spectrum.data(),
                      samples.data(), samples.size(), scale);
}
template <Layout kLayout, class Src, class Dst>
requires RealArrays<Src, Dst> && SamplesAndSpectrum<detail::kUnknown, Dst, Src, kLayout>
[[nodiscard]] zulgResult real_dft_inverse(Src&& src, Dst&& dst, Scale scale) noexcept {
  return real_dft_inverse<detail::kUnknown, kLayout>(src, dst, scale);
}

// Walsh-Hadamard transform in natural order: zulgen/wht.h. The size of both arrays is a power of
// two from 2 to 8192. From 256 samples on the transform works in a buffer that the caller brings,
// of work_bytes() and any alignment, apart from the samples; shorter ones need none. ZULG_ERR_SIZE,
// and nothing written, if a size doesn't fit, the buffer's included. Nothing is allocated.

namespace detail {

inline constexpr std::size_t kWorkAlignment = 16;

template <class Real>
std::size_t aligned_work_bytes(std::size_t samples) noexcept {
  int bytes = 0;
  if (std::has_single_bit(samples)) Functions<Real>::kWorkSize(std::countr_zero(samples), &bytes);
  return static_cast<std::size_t>(bytes);
}

}  // namespace detail

// Bytes of the buffer for that many samples, wherever it lies; 0 if they need none, or there is no
// such transform.
template <class Real>
std::size_t work_bytes(std::size_t samples) noexcept {
  const std::size_t bytes = detail::aligned_work_bytes<Real>(samples);
  return bytes == 0 ? 0 : bytes + detail::kWorkAlignment - 1;
}

template <class Src, class Dst>
requires RealArrays<Src, Dst> && EqualSizes<detail::kUnknown, Src, Dst> &&
    PowerOfTwoFrom2To8192<detail::kSize<detail::kUnknown, Src, Dst>>
[[nodiscard]] zulgResult walsh_hadamard(Src&& src, Dst&& dst, Scale scale,
                                        std::span<std::byte> work = {}) noexcept {
  using Real = detail::ValueOf<Src>;
  const std::span from(src);
  const std::span to(dst);
  if (from.size() != to.size() || !std::has_single_bit(from.size())) return ZULG_ERR_SIZE;
  const std::size_t bytes = detail::aligned_work_bytes<Real>(from.size());
  void* at = work.data();
  std::size_t room = work.size();
  if (bytes > 0 && !std::align(detail::kWorkAlignment, bytes, at, room)) return ZULG_ERR_SIZE;
  return detail::Functions<Real>::kWalshHadamard(
      from.data(), to.data(), std::countr_zero(from.size()), static_cast<zulgScaleFlag>(scale), at);
}

}  // namespace zulgen

#endif
