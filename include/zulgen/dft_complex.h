/* Complex DFT of fixed length N.
 *
 *   zulgDFTFwd_CToC_N_32fc   dst[k] = s * sum over n of src[n] * exp(-2 pi i n k / N)
 *   zulgDFTInv_CToC_N_32fc   dst[n] = s * sum over k of src[k] * exp(+2 pi i n k / N)
 *
 * with n and k from 0 to N - 1 and s the factor that the flag selects (zulgen/types.h).
 *
 *   src    N samples, in natural order
 *   dst    N samples, in natural order; may be src. Arrays that overlap otherwise are not served.
 *   flag   the scale flag
 *
 * Returns ZULG_OK; ZULG_ERR_NULL_PTR if a pointer is null; ZULG_ERR_FLAG if the flag is none of the
 * four. After an error dst is as it was.
 *
 * Pointers need the alignment of float alone. Both on 16 bytes take a faster body, with the same
 * bits in the result. Nothing outside the N samples is read or written. Infinities and NaNs go
 * through the arithmetic. Re-entrant. */
#ifndef ZULGEN_DFT_COMPLEX_H
#define ZULGEN_DFT_COMPLEX_H

#include "zulgen/types.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZULGEN_CTOC(name, sample) \
  zulgResult name(const sample* src, sample* dst, zulgScaleFlag flag)

ZULGEN_CTOC(zulgDFTFwd_CToC_2_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_3_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_4_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_5_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_6_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_8_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_9_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_10_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_12_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_15_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_16_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_18_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_20_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_24_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_25_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_27_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_30_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_32_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_36_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_40_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_45_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_48_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_50_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_54_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_60_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_64_32fc, zulg32fc);

ZULGEN_CTOC(zulgDFTInv_CToC_2_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTInv_CToC_3_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTInv_CToC_4_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTInv_CToC_5_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTInv_CToC_6_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTInv_CToC_8_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTInv_CToC_9_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTInv_CToC_10_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTInv_CToC_12_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTInv_CToC_15_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTInv_CToC_16_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTInv_CToC_18_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTInv_CToC_20_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTInv_CToC_24_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTInv_CToC_25_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTInv_CToC_27_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTInv_CToC_30_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTInv_CToC_32_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTInv_CToC_36_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTInv_CToC_40_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTInv_CToC_45_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTInv_CToC_48_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTInv_CToC_50_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTInv_CToC_54_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTInv_CToC_60_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTInv_CToC_64_32fc, zulg32fc);

#undef ZULGEN_CTOC

#ifdef __cplusplus
}
#endif

#endif
