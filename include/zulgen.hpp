// zulgen for C++20: the same functions on spans, with the length as a template argument or from the
// spans. Header only; every call is the call of one C function, whose result it returns, and the
// length, if it is known, is checked when the program is compiled.
//
//   std::array<std::complex<float>, 12> x, y;
//   zulgen::dft_forward<12>(x, y, zulgen::Scale::kNone);             // zulgDFTFwd_CToC_12_32fc
//
//   std::vector<double> samples(n), spectrum(zulgen::spectrum_size(zulgen::Layout::kPack, n));
//   zulgen::real_dft_forward<zulgen::Layout::kPack>(                 // zulgDFTFwd_RToPack_64f
//       samples, spectrum, zulgen::Scale::kForwardByN);
//
// Spans of a fixed size come from arrays as they are, from other memory by
// std::span(memory).first<12>(). Source and destination may begin at the same place. What a
// function computes, its alignment and its threads: in the C headers, under the name of the
// function.
#ifndef ZULGEN_HPP
#define ZULGEN_HPP

#include <bit>
#include <complex>
#include <cstddef>
#include <memory>
#include <span>
#include <type_traits>
#include <utility>

#include "zulgen.h"

namespace zulgen {

// The factor that a result is multiplied by: zulgen/types.h.
enum class Scale : zulgScaleFlag {
  kForwardByN = ZULG_SCALE_FWD_BY_N,
  kInverseByN = ZULG_SCALE_INV_BY_N,
  kBySqrtN = ZULG_SCALE_BY_SQRT_N,
  kNone = ZULG_SCALE_NONE,
};

// How the spectrum of real samples is packed: zulgen/dft_real_forward.h.
enum class Layout { kCcs, kPack, kPerm };

// The number of elements that the spectrum of n real samples has.
constexpr std::size_t spectrum_size(Layout layout, std::size_t n) {
  return layout == Layout::kCcs ? n / 2 * 2 + 2 : n;
}

namespace detail {

inline constexpr std::size_t kLengths = 63, kLayouts = 3;

template <class Sample>
using Kernel = zulgResult (*)(const Sample*, Sample*, zulgScaleFlag);
template <class Sample>
using Entry = zulgResult (*)(const Sample*, Sample*, int, zulgScaleFlag);

#define ZULGEN_KERNELS(name, type)                                                                \
  {                                                                                               \
    name##_2_##type, name##_3_##type, name##_4_##type, name##_5_##type, name##_6_##type,          \
        name##_7_##type, name##_8_##type, name##_9_##type, name##_10_##type, name##_11_##type,    \
        name##_12_##type, name##_13_##type, name##_14_##type, name##_15_##type, name##_16_##type, \
        name##_17_##type, name##_18_##type, name##_19_##type, name##_20_##type, name##_21_##type, \
        name##_22_##type, name##_23_##type, name##_24_##type, name##_25_##type, name##_26_##type, \
        name##_27_##type, name##_28_##type, name##_29_##type, name##_30_##type, name##_31_##type, \
        name##_32_##type, name##_33_##type, name##_34_##type, name##_35_##type, name##_36_##type, \
        name##_37_##type, name##_38_##type, name##_39_##type, name##_40_##type, name##_41_##type, \
        name##_42_##type, name##_43_##type, name##_44_##type, name##_45_##type, name##_46_##type, \
        name##_47_##type, name##_48_##type, name##_49_##type, name##_50_##type, name##_51_##type, \
        name##_52_##type, name##_53_##type, name##_54_##type, name##_55_##type, name##_56_##type, \
        name##_57_##type, name##_58_##type, name##_59_##type, name##_60_##type, name##_61_##type, \
        name##_62_##type, name##_63_##type, name##_64_##type                                      \
  }

// The functions of one precision; layouts are in the order of their enumeration.
template <class Real>
struct Functions;

#define ZULGEN_FUNCTIONS(real, type)                                                              \
  template <>                                                                                     \
  struct Functions<real> {                                                                        \
    static constexpr Kernel<zulg##type##c> kForward[] = ZULGEN_KERNELS(zulgDFTFwd_CToC, type##c); \
    static constexpr Kernel<zulg##type##c> kInverse[] = ZULGEN_KERNELS(zulgDFTInv_CToC, type##c); \
    static constexpr Kernel<zulg##type> kHartley[] = ZULGEN_KERNELS(zulgHartley, type);           \
    static constexpr Kernel<zulg##type> kRealForward[kLayouts][kLengths] = {                      \
        ZULGEN_KERNELS(zulgDFTFwd_RToCCS, type), ZULGEN_KERNELS(zulgDFTFwd_RToPack, type),        \
        ZULGEN_KERNELS(zulgDFTFwd_RToPerm, type)};                                                \
    static constexpr Kernel<zulg##type> kRealInverse[kLayouts][kLengths] = {                      \
        ZULGEN_KERNELS(zulgDFTInv_CCSToR, type), ZULGEN_KERNELS(zulgDFTInv_PackToR, type),        \
        ZULGEN_KERNELS(zulgDFTInv_PermToR, type)};                                                \
    static constexpr Entry<zulg##type> kRealForwardByLength[] = {                                 \
        zulgDFTFwd_RToCCS_##type, zulgDFTFwd_RToPack_##type, zulgDFTFwd_RToPerm_##type};          \
    static constexpr Entry<zulg##type> kRealInverseByLength[] = {                                 \
        zulgDFTInv_CCSToR_##type, zulgDFTInv_PackToR_##type, zulgDFTInv_PermToR_##type};          \
  }
ZULGEN_FUNCTIONS(float, 32f);
ZULGEN_FUNCTIONS(double, 64f);
#undef ZULGEN_FUNCTIONS
#undef ZULGEN_KERNELS

// The compiler's look into the tables, which leaves nothing of them in the program.
template <std::size_t N, class Sample>
consteval Kernel<Sample> find(const Kernel<Sample> (&kernels)[kLengths]) {
  static_assert(2 <= N && N <= 64, "transforms have 2 to 64 points");
  return kernels[N - 2];
}
template <std::size_t N, Layout kLayout, class Sample>
consteval Kernel<Sample> find(const Kernel<Sample> (&kernels)[kLayouts][kLengths]) {
  return find<N>(kernels[static_cast<int>(kLayout)]);
}
template <Layout kLayout, class Sample>
consteval Entry<Sample> find(const Entry<Sample> (&entries)[kLayouts]) {
  return entries[static_cast<int>(kLayout)];
}

// Complex numbers of the standard library and of the C functions are two reals in a row.
template <class Sample, class Source, class Destination>
zulgResult call(Kernel<Sample> kernel, const Source& src, const Destination& dst, Scale scale) {
  return kernel(reinterpret_cast<const Sample*>(src.data()), reinterpret_cast<Sample*>(dst.data()),
                static_cast<zulgScaleFlag>(scale));
}

template <class Sample, class Source, class Destination>
zulgResult call(Entry<Sample> entry, const Source& src, const Destination& dst, std::size_t length,
                Scale scale) {
  return entry(reinterpret_cast<const Sample*>(src.data()), reinterpret_cast<Sample*>(dst.data()),
               static_cast<int>(length), static_cast<zulgScaleFlag>(scale));
}

}  // namespace detail

// Complex DFT of N points: zulgen/dft_complex.h.

template <std::size_t N>
[[nodiscard]] zulgResult dft_forward(std::span<const std::complex<float>, N> src,
                                     std::span<std::complex<float>, N> dst, Scale scale) noexcept {
  return detail::call(detail::find<N>(detail::Functions<float>::kForward), src, dst, scale);
}
template <std::size_t N>
[[nodiscard]] zulgResult dft_forward(std::span<const std::complex<double>, N> src,
                                     std::span<std::complex<double>, N> dst, Scale scale) noexcept {
  return detail::call(detail::find<N>(detail::Functions<double>::kForward), src, dst, scale);
}

template <std::size_t N>
[[nodiscard]] zulgResult dft_inverse(std::span<const std::complex<float>, N> src,
                                     std::span<std::complex<float>, N> dst, Scale scale) noexcept {
  return detail::call(detail::find<N>(detail::Functions<float>::kInverse), src, dst, scale);
}
template <std::size_t N>
[[nodiscard]] zulgResult dft_inverse(std::span<const std::complex<double>, N> src,
                                     std::span<std::complex<double>, N> dst, Scale scale) noexcept {
  return detail::call(detail::find<N>(detail::Functions<double>::kInverse), src, dst, scale);
}

// The same of a length that is known at run time only, the size of both spans: ZULG_ERR_SIZE, and
// nothing written, if the sizes differ or there is no such transform.

[[nodiscard]] inline zulgResult dft_forward(std::span<const std::complex<float>> src,
                                            std::span<std::complex<float>> dst,
                                            Scale scale) noexcept {
  if (src.size() != dst.size()) return ZULG_ERR_SIZE;
  return detail::call(zulgDFTFwd_CToC_32fc, src, dst, src.size(), scale);
}
[[nodiscard]] inline zulgResult dft_forward(std::span<const std::complex<double>> src,
                                            std::span<std::complex<double>> dst,
                                            Scale scale) noexcept {
  if (src.size() != dst.size()) return ZULG_ERR_SIZE;
  return detail::call(zulgDFTFwd_CToC_64fc, src, dst, src.size(), scale);
}

[[nodiscard]] inline zulgResult dft_inverse(std::span<const std::complex<float>> src,
                                            std::span<std::complex<float>> dst,
                                            Scale scale) noexcept {
  if (src.size() != dst.size()) return ZULG_ERR_SIZE;
  return detail::call(zulgDFTInv_CToC_32fc, src, dst, src.size(), scale);
}
[[nodiscard]] inline zulgResult dft_inverse(std::span<const std::complex<double>> src,
                                            std::span<std::complex<double>> dst,
                                            Scale scale) noexcept {
  if (src.size() != dst.size()) return ZULG_ERR_SIZE;
  return detail::call(zulgDFTInv_CToC_64fc, src, dst, src.size(), scale);
}

// Real DFT of N samples to a packed spectrum, and back: zulgen/dft_real_forward.h and
// zulgen/dft_real_inverse.h.

template <std::size_t N, Layout kLayout>
[[nodiscard]] zulgResult real_dft_forward(std::span<const float, N> src,
                                          std::span<float, spectrum_size(kLayout, N)> dst,
                                          Scale scale) noexcept {
  return detail::call(detail::find<N, kLayout>(detail::Functions<float>::kRealForward), src, dst,
                      scale);
}
template <std::size_t N, Layout kLayout>
[[nodiscard]] zulgResult real_dft_forward(std::span<const double, N> src,
                                          std::span<double, spectrum_size(kLayout, N)> dst,
                                          Scale scale) noexcept {
  return detail::call(detail::find<N, kLayout>(detail::Functions<double>::kRealForward), src, dst,
                      scale);
}

template <std::size_t N, Layout kLayout>
[[nodiscard]] zulgResult real_dft_inverse(std::span<const float, spectrum_size(kLayout, N)> src,
                                          std::span<float, N> dst, Scale scale) noexcept {
  return detail::call(detail::find<N, kLayout>(detail::Functions<float>::kRealInverse), src, dst,
                      scale);
}
template <std::size_t N, Layout kLayout>
[[nodiscard]] zulgResult real_dft_inverse(std::span<const double, spectrum_size(kLayout, N)> src,
                                          std::span<double, N> dst, Scale scale) noexcept {
  return detail::call(detail::find<N, kLayout>(detail::Functions<double>::kRealInverse), src, dst,
                      scale);
}

// The same of a number of samples that is known at run time only: ZULG_ERR_SIZE, and nothing
// written, if the spectrum has another size or there is no such transform.

template <Layout kLayout>
[[nodiscard]] zulgResult real_dft_forward(std::span<const float> src, std::span<float> dst,
                                          Scale scale) noexcept {
  if (dst.size() != spectrum_size(kLayout, src.size())) return ZULG_ERR_SIZE;
  return detail::call(detail::find<kLayout>(detail::Functions<float>::kRealForwardByLength), src,
                      dst, src.size(), scale);
}
template <Layout kLayout>
[[nodiscard]] zulgResult real_dft_forward(std::span<const double> src, std::span<double> dst,
                                          Scale scale) noexcept {
  if (dst.size() != spectrum_size(kLayout, src.size())) return ZULG_ERR_SIZE;
  return detail::call(detail::find<kLayout>(detail::Functions<double>::kRealForwardByLength), src,
                      dst, src.size(), scale);
}

template <Layout kLayout>
[[nodiscard]] zulgResult real_dft_inverse(std::span<const float> src, std::span<float> dst,
                                          Scale scale) noexcept {
  if (src.size() != spectrum_size(kLayout, dst.size())) return ZULG_ERR_SIZE;
  return detail::call(detail::find<kLayout>(detail::Functions<float>::kRealInverseByLength), src,
                      dst, dst.size(), scale);
}
template <Layout kLayout>
[[nodiscard]] zulgResult real_dft_inverse(std::span<const double> src, std::span<double> dst,
                                          Scale scale) noexcept {
  if (src.size() != spectrum_size(kLayout, dst.size())) return ZULG_ERR_SIZE;
  return detail::call(detail::find<kLayout>(detail::Functions<double>::kRealInverseByLength), src,
                      dst, dst.size(), scale);
}

// Hartley transform of N samples, a length that is known when compiling or at run time only:
// zulgen/hartley.h.

template <std::size_t N>
[[nodiscard]] zulgResult hartley(std::span<const float, N> src, std::span<float, N> dst,
                                 Scale scale) noexcept {
  return detail::call(detail::find<N>(detail::Functions<float>::kHartley), src, dst, scale);
}
template <std::size_t N>
[[nodiscard]] zulgResult hartley(std::span<const double, N> src, std::span<double, N> dst,
                                 Scale scale) noexcept {
  return detail::call(detail::find<N>(detail::Functions<double>::kHartley), src, dst, scale);
}

[[nodiscard]] inline zulgResult hartley(std::span<const float> src, std::span<float> dst,
                                        Scale scale) noexcept {
  if (src.size() != dst.size()) return ZULG_ERR_SIZE;
  return detail::call(zulgHartley_32f, src, dst, src.size(), scale);
}
[[nodiscard]] inline zulgResult hartley(std::span<const double> src, std::span<double> dst,
                                        Scale scale) noexcept {
  if (src.size() != dst.size()) return ZULG_ERR_SIZE;
  return detail::call(zulgHartley_64f, src, dst, src.size(), scale);
}

// Walsh-Hadamard transform in natural order: zulgen/wht.h. The size of both spans is a power of two
// from 2 to 8192. From 256 samples on the transform works in a buffer that the caller brings, of
// work_bytes() and any alignment, apart from the samples; shorter ones need none. ZULG_ERR_SIZE,
// and nothing written, if a size doesn't fit, the buffer's included. Nothing is allocated.

namespace detail {

inline constexpr std::size_t kWorkAlignment = 16;

template <class Real>
std::size_t aligned_work_bytes(std::size_t samples) noexcept {
  constexpr auto kSize =
      std::is_same_v<Real, float> ? zulgWHTGetBufferSize_32f : zulgWHTGetBufferSize_64f;
  int bytes = 0;
  if (std::has_single_bit(samples)) kSize(std::countr_zero(samples), &bytes);
  return static_cast<std::size_t>(bytes);
}

template <class Real, class Entry>
zulgResult walsh_hadamard(Entry entry, std::span<const Real> src, std::span<Real> dst, Scale scale,
                          std::span<std::byte> work) noexcept {
  if (src.size() != dst.size() || !std::has_single_bit(src.size())) return ZULG_ERR_SIZE;
  const std::size_t bytes = aligned_work_bytes<Real>(src.size());
  void* at = work.data();
  std::size_t room = work.size();
  if (bytes > 0 && !std::align(kWorkAlignment, bytes, at, room)) return ZULG_ERR_SIZE;
  return entry(src.data(), dst.data(), std::countr_zero(src.size()),
               static_cast<zulgScaleFlag>(scale), at);
}

}  // namespace detail

// Bytes of the buffer for that many samples, wherever it lies; 0 if they need none, or there is no
// such transform.
template <class Real>
std::size_t work_bytes(std::size_t samples) noexcept {
  const std::size_t bytes = detail::aligned_work_bytes<Real>(samples);
  return bytes == 0 ? 0 : bytes + detail::kWorkAlignment - 1;
}

[[nodiscard]] inline zulgResult walsh_hadamard(std::span<const float> src, std::span<float> dst,
                                               Scale scale,
                                               std::span<std::byte> work = {}) noexcept {
  return detail::walsh_hadamard(zulgWHT_32f, src, dst, scale, work);
}
[[nodiscard]] inline zulgResult walsh_hadamard(std::span<const double> src, std::span<double> dst,
                                               Scale scale,
                                               std::span<std::byte> work = {}) noexcept {
  return detail::walsh_hadamard(zulgWHT_64f, src, dst, scale, work);
}

// A plan for the DCT-IV of one length: zulgen/dct4.h. It owns the plan's memory. As the plan is
// what the transform works in, calls of one plan must not run side by side.
template <class Real>
class Dct4 {
  static_assert(std::is_same_v<Real, float> || std::is_same_v<Real, double>);
  static constexpr bool kSingle = std::is_same_v<Real, float>;
  using Spec = std::conditional_t<kSingle, zulgDCT4Spec_32f, zulgDCT4Spec_64f>;

 public:
  // Without a plan, as after being moved from.
  Dct4() = default;
  Dct4(Dct4&& other) noexcept
      : spec_(std::exchange(other.spec_, nullptr)), size_(std::exchange(other.size_, 0)) {}
  Dct4& operator=(Dct4&& other) noexcept {
    std::swap(spec_, other.spec_);
    std::swap(size_, other.size_);
    return *this;
  }
  ~Dct4() {
    if (spec_ == nullptr) return;
    if constexpr (kSingle) {
      zulgDCT4Free_32f(spec_);
    } else {
      zulgDCT4Free_64f(spec_);
    }
  }

  // Makes the plan; what zulgDCT4InitAlloc returns, and ZULG_ERR_SIZE for the lengths that it takes
  // without use. After an error there is no plan.
  [[nodiscard]] zulgResult plan(std::size_t n) noexcept {
    *this = Dct4();
    constexpr std::size_t kLongest = std::size_t{1} << 28, kFirstUseless = kSingle ? 33 : 9;
    const bool is_useless = n >= kFirstUseless && std::has_single_bit(n - 1);
    if (n > kLongest || is_useless) return ZULG_ERR_SIZE;
    Spec* spec = nullptr;
    zulgResult result;
    if constexpr (kSingle) {
      result = zulgDCT4InitAlloc_32f(&spec, static_cast<int>(n));
    } else {
      result = zulgDCT4InitAlloc_64f(&spec, static_cast<int>(n));
    }
    if (result == ZULG_OK) {
      spec_ = spec;
      size_ = n;
    }
    return result;
  }

  // The planned length; 0 if there is no plan.
  std::size_t size() const noexcept { return size_; }

  // ZULG_ERR_SIZE, and nothing written, unless both spans have the planned length.
  [[nodiscard]] zulgResult operator()(std::span<const Real> src, std::span<Real> dst) noexcept {
    if (size_ == 0 || src.size() != size_ || dst.size() != size_) return ZULG_ERR_SIZE;
    if constexpr (kSingle) {
      return zulgDCT4_32f(src.data(), dst.data(), spec_);
    } else {
      return zulgDCT4_64f(src.data(), dst.data(), spec_);
    }
  }

 private:
  Spec* spec_ = nullptr;
  std::size_t size_ = 0;
};

}  // namespace zulgen

#endif
