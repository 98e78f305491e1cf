/* Complex DFT of fixed length N = 2 to 64, in single precision (_32fc) and double (_64fc).
 *
 *   zulgDFTFwd_CToC_N_32fc   dst[k] = s * sum over n of src[n] * exp(-2 pi i n k / N)
 *   zulgDFTInv_CToC_N_32fc   dst[n] = s * sum over k of src[k] * exp(+2 pi i n k / N)
 *
 * with n and k from 0 to N - 1 and s the factor that the flag selects (zulgen/types.h). Forward and
 * inverse with one of the flags ZULG_SCALE_FWD_BY_N, ZULG_SCALE_INV_BY_N and ZULG_SCALE_BY_SQRT_N
 * give back the samples; with ZULG_SCALE_NONE, N times the samples.
 *
 *   src    N samples, in natural order
 *   dst    N samples, in natural order; may be src. Arrays that overlap otherwise are not served.
 *   flag   the scale flag
 *
 * Returns ZULG_OK; ZULG_ERR_NULL_PTR if a pointer is null; ZULG_ERR_FLAG if the flag is none of the
 * four. After an error dst is as it was.
 *
 * Pointers need the alignment of float or double alone. Both on 16 bytes take a faster body, with
 * the same bits in the result. Nothing outside the N samples is read or written. Infinities and NaNs
 * go through the arithmetic. Re-entrant. */
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
ZULGEN_CTOC(zulgDFTFwd_CToC_7_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_8_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_9_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_10_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_11_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_12_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_13_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_14_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_15_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_16_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_17_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_18_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_19_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_20_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_21_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_22_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_23_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_24_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_25_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_26_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_27_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_28_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_29_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_30_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_31_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_32_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_33_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_34_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_35_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_36_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_37_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_38_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_39_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_40_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_41_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_42_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_43_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_44_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_45_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_46_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_47_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_48_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_49_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_50_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_51_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_52_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_53_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_54_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_55_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_56_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_57_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_58_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_59_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_60_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_61_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_62_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_63_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_64_32fc, zulg32fc);

ZULGEN_CTOC(zulgDFTInv_CToC_2_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTInv_CToC_3_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTInv_CToC_4_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTInv_CToC_5_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTInv_CToC_6_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTInv_CToC_7_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTInv_CToC_8_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTInv_CToC_9_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTInv_CToC_10_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTInv_CToC_11_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTInv_CToC_12_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTInv_CToC_13_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTInv_CToC_14_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTInv_CToC_15_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTInv_CToC_16_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTInv_CToC_17_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTInv_CToC_18_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTInv_CToC_19_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTInv_CToC_20_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTInv_CToC_21_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTInv_CToC_22_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTInv_CToC_23_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTInv_CToC_24_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTInv_CToC_25_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTInv_CToC_26_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTInv_CToC_27_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTInv_CToC_28_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTInv_CToC_29_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTInv_CToC_30_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTInv_CToC_31_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTInv_CToC_32_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTInv_CToC_33_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTInv_CToC_34_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTInv_CToC_35_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTInv_CToC_36_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTInv_CToC_37_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTInv_CToC_38_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTInv_CToC_39_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTInv_CToC_40_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTInv_CToC_41_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTInv_CToC_42_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTInv_CToC_43_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTInv_CToC_44_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTInv_CToC_45_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTInv_CToC_46_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTInv_CToC_47_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTInv_CToC_48_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTInv_CToC_49_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTInv_CToC_50_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTInv_CToC_51_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTInv_CToC_52_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTInv_CToC_53_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTInv_CToC_54_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTInv_CToC_55_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTInv_CToC_56_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTInv_CToC_57_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTInv_CToC_58_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTInv_CToC_59_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTInv_CToC_60_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTInv_CToC_61_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTInv_CToC_62_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTInv_CToC_63_32fc, zulg32fc);
ZULGEN_CTOC(zulgDFTInv_CToC_64_32fc, zulg32fc);

ZULGEN_CTOC(zulgDFTFwd_CToC_2_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_3_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_4_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_5_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_6_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_7_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_8_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_9_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_10_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_11_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_12_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_13_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_14_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_15_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_16_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_17_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_18_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_19_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_20_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_21_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_22_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_23_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_24_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_25_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_26_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_27_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_28_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_29_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_30_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_31_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_32_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_33_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_34_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_35_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_36_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_37_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_38_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_39_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_40_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_41_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_42_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_43_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_44_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_45_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_46_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_47_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_48_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_49_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_50_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_51_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_52_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_53_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_54_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_55_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_56_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_57_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_58_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_59_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_60_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_61_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_62_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_63_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTFwd_CToC_64_64fc, zulg64fc);

ZULGEN_CTOC(zulgDFTInv_CToC_2_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTInv_CToC_3_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTInv_CToC_4_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTInv_CToC_5_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTInv_CToC_6_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTInv_CToC_7_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTInv_CToC_8_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTInv_CToC_9_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTInv_CToC_10_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTInv_CToC_11_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTInv_CToC_12_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTInv_CToC_13_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTInv_CToC_14_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTInv_CToC_15_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTInv_CToC_16_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTInv_CToC_17_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTInv_CToC_18_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTInv_CToC_19_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTInv_CToC_20_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTInv_CToC_21_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTInv_CToC_22_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTInv_CToC_23_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTInv_CToC_24_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTInv_CToC_25_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTInv_CToC_26_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTInv_CToC_27_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTInv_CToC_28_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTInv_CToC_29_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTInv_CToC_30_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTInv_CToC_31_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTInv_CToC_32_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTInv_CToC_33_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTInv_CToC_34_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTInv_CToC_35_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTInv_CToC_36_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTInv_CToC_37_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTInv_CToC_38_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTInv_CToC_39_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTInv_CToC_40_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTInv_CToC_41_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTInv_CToC_42_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTInv_CToC_43_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTInv_CToC_44_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTInv_CToC_45_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTInv_CToC_46_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTInv_CToC_47_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTInv_CToC_48_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTInv_CToC_49_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTInv_CToC_50_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTInv_CToC_51_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTInv_CToC_52_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTInv_CToC_53_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTInv_CToC_54_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTInv_CToC_55_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTInv_CToC_56_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTInv_CToC_57_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTInv_CToC_58_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTInv_CToC_59_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTInv_CToC_60_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTInv_CToC_61_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTInv_CToC_62_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTInv_CToC_63_64fc, zulg64fc);
ZULGEN_CTOC(zulgDFTInv_CToC_64_64fc, zulg64fc);

#undef ZULGEN_CTOC

#ifdef __cplusplus
}
#endif

#endif
