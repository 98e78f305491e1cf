/* zulgen: signal transforms of short, fixed length for 32-bit x86 Linux with SSE2.
 *
 * This header declares all of libzulgens8.so.6.1. It is C89 and C++.
 *
 *   zulgen/types.h             result codes, scale flags, sample types
 *   zulgen/version.h           which library this is
 *   zulgen/dft_complex.h       complex DFT, forward and inverse
 *   zulgen/dft_real_forward.h  real DFT to a packed spectrum
 *   zulgen/dft_real_inverse.h  and back
 *   zulgen/hartley.h           Hartley transform
 *   zulgen/wht.h               Walsh-Hadamard transform
 *   zulgen/dct4.h              DCT-IV of a length chosen at run time
 *   zulgen/dispatch.h          the kernels, of a length known at run time only
 *
 * Every function is safe to call from any number of threads at once, as long as no two calls write
 * to the same array. None prints, exits or keeps anything after it returns. None allocates, but for
 * the long Walsh-Hadamard transforms if they are given no work buffer.
 */
#ifndef ZULGEN_H
#define ZULGEN_H

#include "zulgen/types.h"

#include "zulgen/dct4.h"
#include "zulgen/dft_complex.h"
#include "zulgen/dft_real_forward.h"
#include "zulgen/dft_real_inverse.h"
#include "zulgen/dispatch.h"
#include "zulgen/hartley.h"
#include "zulgen/version.h"
#include "zulgen/wht.h"

#endif
