// zulgen for C++20: the same functions on arrays, vectors and spans. Header only; every call is the
// call of one C function, whose result it returns.
//
//   std::array<std::complex<float>, 12> x, y;
//   zulgen::dft_forward(x, y, zulgen::Scale::kNone);                 // zulgDFTFwd_CToC_12_32fc
//
//   std::vector<double> samples(n), spectrum(zulgen::spectrum_size(zulgen::Layout::kPack, n));
//   zulgen::real_dft_forward<zulgen::Layout::kPack>(                 // zulgDFTFwd_RToPack_64f
//       samples, spectrum, zulgen::Scale::kForwardByN);
//
//   dft_forward, dft_inverse                  complex DFT            zulgen/dft_complex.h
//   real_dft_forward<Layout>                  real DFT               zulgen/dft_real_forward.h
//   real_dft_inverse<Layout>                  and back               zulgen/dft_real_inverse.h
//   hartley                                   Hartley transform      zulgen/hartley.h
//   walsh_hadamard, work_bytes                Walsh-Hadamard         zulgen/wht.h
//   Dct4                                      DCT-IV, a plan         zulgen/dct4.h
//   result_text                               a result in words      zulgen/types.h
//
// Sizes that the compiler knows, those of std::array, C arrays and spans of fixed extent, have to
// fit one another and a transform that there is: else the call doesn't compile. The kernel is then
// called by its name. All other sizes are checked when the program runs: ZULG_ERR_SIZE, and nothing
// is written, if they don't fit. The length may stand in front of the arguments, as in
// dft_forward<12>(x, y, scale) and real_dft_forward<12, Layout::kPack>(x, y, scale); vectors of
// that length then reach the kernel by its name, too.
//
// Source and destination may begin at the same place; a spectrum in CCS then needs a view of its
// own size, as it is longer than its samples. What a function computes, its alignment and its
// threads: in the C headers.
#ifndef ZULGEN_HPP
#define ZULGEN_HPP

#if __cplusplus < 202002L
#error "zulgen.hpp needs C++20 (-std=c++20); zulgen.h serves every C and C++"
#else

#include "zulgen/dct4.hpp"
#include "zulgen/transforms.hpp"

namespace zulgen {

// What a result says, for a message.
constexpr const char* result_text(zulgResult result) noexcept {
  switch (result) {
    case ZULG_OK:
      return "done";
    case ZULG_ERR_CONTEXT:
      return "the plan is none";
    case ZULG_ERR_SIZE:
      return "a size doesn't fit, or there is no transform of that length";
    case ZULG_ERR_NULL_PTR:
      return "a pointer is null, or there is no memory";
    case ZULG_ERR_FLAG:
      return "the scale flag is none of the four";
    default:
      return "no result of zulgen";
  }
}

}  // namespace zulgen

#endif
#endif
