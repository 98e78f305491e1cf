/* Walsh-Hadamard transform of order N = 1 to 13, that is of L = 2^N samples, in single precision
 * (_32f) and double (_64f).
 *
 *   zulgWHT_N_32f   dst[k] = s * sum over j of (-1)^popcount(j & k) * src[j]
 *
 * with j and k from 0 to L - 1: the Hadamard matrix in natural order, neither sequency nor dyadic. It
 * is its own inverse up to the factor s, which the flag selects (zulgen/types.h): 1/L under
 * ZULG_SCALE_FWD_BY_N and ZULG_SCALE_INV_BY_N alike, 1/sqrt(L) under ZULG_SCALE_BY_SQRT_N, 1 under
 * ZULG_SCALE_NONE. Twice with ZULG_SCALE_NONE gives L times the samples.
 *
 *   src    L samples
 *   dst    L samples; may be src. Arrays that overlap otherwise are not served.
 *   flag   the scale flag
 *   work   orders 1 to 7: not used, anything will do.
 *          orders 8 to 13: a work buffer of the size that zulgWHTGetBufferSize tells, aligned on 16
 *          bytes, apart from src and dst; it needs no initialisation and means nothing afterwards. Or
 *          null: then the kernel takes memory from zulMalloc and gives it back, without a test whether
 *          there was any; who can't rely on that brings a buffer.
 *
 * Returns ZULG_OK; ZULG_ERR_NULL_PTR if src or dst is null; ZULG_ERR_FLAG if the flag is none of the
 * four. After an error dst is as it was, and no memory has been asked for.
 *
 * The fast algorithm: N stages of butterflies, one for each bit of the index, lowest first, N * L
 * additions and subtractions, then one product a sample, all in the sample's own precision. That
 * settles every rounding: the bits of the result do not depend on alignment, work buffer or place.
 *
 * src and dst need the alignment of float or double alone; both on 16 bytes take a faster body.
 * Nothing outside the arrays and the stated size of the work buffer is read or written. Infinities
 * and NaNs go through the arithmetic. Re-entrant, as long as no two calls share a work buffer. */
#ifndef ZULGEN_WHT_H
#define ZULGEN_WHT_H

#include "zulgen/types.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZULGEN_WHT_ORDER(name, sample) \
  zulgResult name(const sample* src, sample* dst, zulgScaleFlag flag, void* work)

ZULGEN_WHT_ORDER(zulgWHT_1_32f, zulg32f);
ZULGEN_WHT_ORDER(zulgWHT_2_32f, zulg32f);
ZULGEN_WHT_ORDER(zulgWHT_3_32f, zulg32f);
ZULGEN_WHT_ORDER(zulgWHT_4_32f, zulg32f);
ZULGEN_WHT_ORDER(zulgWHT_5_32f, zulg32f);
ZULGEN_WHT_ORDER(zulgWHT_6_32f, zulg32f);
ZULGEN_WHT_ORDER(zulgWHT_7_32f, zulg32f);
ZULGEN_WHT_ORDER(zulgWHT_8_32f, zulg32f);
ZULGEN_WHT_ORDER(zulgWHT_9_32f, zulg32f);
ZULGEN_WHT_ORDER(zulgWHT_10_32f, zulg32f);
ZULGEN_WHT_ORDER(zulgWHT_11_32f, zulg32f);
ZULGEN_WHT_ORDER(zulgWHT_12_32f, zulg32f);
ZULGEN_WHT_ORDER(zulgWHT_13_32f, zulg32f);
ZULGEN_WHT_ORDER(zulgWHT_1_64f, zulg64f);
ZULGEN_WHT_ORDER(zulgWHT_2_64f, zulg64f);
ZULGEN_WHT_ORDER(zulgWHT_3_64f, zulg64f);
ZULGEN_WHT_ORDER(zulgWHT_4_64f, zulg64f);
ZULGEN_WHT_ORDER(zulgWHT_5_64f, zulg64f);
ZULGEN_WHT_ORDER(zulgWHT_6_64f, zulg64f);
ZULGEN_WHT_ORDER(zulgWHT_7_64f, zulg64f);
ZULGEN_WHT_ORDER(zulgWHT_8_64f, zulg64f);
ZULGEN_WHT_ORDER(zulgWHT_9_64f, zulg64f);
ZULGEN_WHT_ORDER(zulgWHT_10_64f, zulg64f);
ZULGEN_WHT_ORDER(zulgWHT_11_64f, zulg64f);
ZULGEN_WHT_ORDER(zulgWHT_12_64f, zulg64f);
ZULGEN_WHT_ORDER(zulgWHT_13_64f, zulg64f);

#undef ZULGEN_WHT_ORDER

/* Writes to *size the bytes of the work buffer that an order from 1 to 13 needs; 0 for orders 1 to 7.
 * ZULG_ERR_SIZE, and nothing written, for any other order. `size` must not be null. */
zulgResult zulgWHTGetBufferSize_32f(int order, int* size);
zulgResult zulgWHTGetBufferSize_64f(int order, int* size);

#ifdef __cplusplus
}
#endif

#endif
