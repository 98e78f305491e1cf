/* zulgen: signal transforms of short, fixed length for x86 Linux, 64-bit and 32-bit, on processors
 * with SSE3.
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
 * Functions may be called from any number of threads at once, as long as no call writes to memory
 * that another one uses: an array, a Walsh-Hadamard work buffer, or a DCT-IV plan of more than 32
 * samples, which holds work buffers.
 *
 * None prints, exits or keeps anything after it returns. The allocator, zulMalloc and zulFree of
 * zulcore.h, is called by zulgDCT4InitAlloc and zulgDCT4Free, and by the long Walsh-Hadamard
 * transforms if they are given no work buffer; by nothing else.
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
