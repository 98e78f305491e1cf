/* Real DFT of fixed length N = 2 to 64 to a packed spectrum, in single precision (_32f) and double
 * (_64f), for each of three layouts:
 *
 *   zulgDFTFwd_RToCCS_N_32f    X[k] = s * sum over n of src[n] * exp(-2 pi i n k / N)
 *   zulgDFTFwd_RToPack_N_32f
 *   zulgDFTFwd_RToPerm_N_32f
 *
 * with n from 0 to N - 1 and s the factor that the flag selects (zulgen/types.h). X[N - k] is the
 * conjugate of X[k], so dst holds X[0] to X[N/2] alone, as
 *
 *   N = 6   CCS   re0  +0  re1 im1  re2 im2  re3  +0      8 elements
 *           Pack  re0 re1 im1  re2 im2  re3               6
 *           Perm  re0 re3  re1 im1  re2 im2               6
 *   N = 5   CCS   re0  +0  re1 im1  re2 im2               6
 *           Pack  re0 re1 im1  re2 im2                    5
 *           Perm  as Pack
 *
 *   element          CCS        Pack    Perm, even N    Perm, odd N
 *   Re X[0]          0          0       0               0
 *   Re X[k]          2k         2k-1    2k              2k-1
 *   Im X[k]          2k+1       2k      2k+1            2k
 *   Re X[N/2]        N          N-1     1               -
 *   +0.0             1, and N+1 -       -               -
 *                    if N is even
 *   number           N+2 or N+1 N       N               N
 *
 * k from 1 to (N - 1) / 2.
 *
 *   src    N samples
 *   dst    the spectrum; may be src. In CCS the array then needs room for N + 1 elements of an odd
 *          N, for N + 2 of an even one. Arrays that overlap otherwise are not served.
 *   flag   the scale flag
 *
 * Returns ZULG_OK; ZULG_ERR_NULL_PTR if a pointer is null; ZULG_ERR_FLAG if the flag is none of the
 * four. After an error dst is as it was.
 *
 * Pointers need the alignment of an element alone. The layouts hold the same values, bit for bit.
 * _32f sums products in double precision. The zeros of CCS are +0.0 whatever the input is.
 * Re-entrant. */
#ifndef ZULGEN_DFT_REAL_FORWARD_H
#define ZULGEN_DFT_REAL_FORWARD_H

#include "zulgen/types.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZULGEN_RTO(name, sample) \
  zulgResult name(const sample* src, sample* dst, zulgScaleFlag flag)

ZULGEN_RTO(zulgDFTFwd_RToCCS_2_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_3_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_4_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_5_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_6_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_7_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_8_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_9_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_10_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_11_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_12_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_13_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_14_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_15_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_16_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_17_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_18_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_19_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_20_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_21_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_22_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_23_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_24_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_25_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_26_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_27_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_28_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_29_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_30_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_31_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_32_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_33_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_34_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_35_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_36_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_37_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_38_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_39_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_40_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_41_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_42_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_43_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_44_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_45_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_46_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_47_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_48_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_49_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_50_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_51_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_52_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_53_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_54_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_55_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_56_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_57_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_58_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_59_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_60_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_61_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_62_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_63_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_64_32f, zulg32f);

ZULGEN_RTO(zulgDFTFwd_RToPack_2_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPack_3_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPack_4_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPack_5_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPack_6_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPack_7_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPack_8_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPack_9_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPack_10_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPack_11_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPack_12_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPack_13_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPack_14_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPack_15_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPack_16_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPack_17_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPack_18_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPack_19_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPack_20_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPack_21_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPack_22_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPack_23_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPack_24_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPack_25_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPack_26_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPack_27_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPack_28_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPack_29_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPack_30_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPack_31_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPack_32_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPack_33_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPack_34_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPack_35_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPack_36_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPack_37_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPack_38_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPack_39_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPack_40_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPack_41_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPack_42_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPack_43_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPack_44_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPack_45_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPack_46_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPack_47_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPack_48_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPack_49_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPack_50_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPack_51_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPack_52_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPack_53_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPack_54_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPack_55_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPack_56_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPack_57_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPack_58_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPack_59_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPack_60_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPack_61_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPack_62_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPack_63_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPack_64_32f, zulg32f);

ZULGEN_RTO(zulgDFTFwd_RToPerm_2_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_3_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_4_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_5_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_6_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_7_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_8_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_9_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_10_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_11_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_12_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_13_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_14_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_15_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_16_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_17_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_18_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_19_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_20_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_21_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_22_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_23_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_24_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_25_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_26_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_27_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_28_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_29_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_30_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_31_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_32_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_33_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_34_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_35_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_36_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_37_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_38_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_39_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_40_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_41_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_42_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_43_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_44_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_45_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_46_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_47_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_48_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_49_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_50_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_51_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_52_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_53_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_54_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_55_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_56_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_57_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_58_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_59_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_60_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_61_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_62_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_63_32f, zulg32f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_64_32f, zulg32f);

ZULGEN_RTO(zulgDFTFwd_RToCCS_2_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_3_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_4_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_5_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_6_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_7_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_8_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_9_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_10_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_11_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_12_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_13_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_14_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_15_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_16_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_17_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_18_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_19_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_20_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_21_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_22_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_23_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_24_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_25_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_26_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_27_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_28_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_29_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_30_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_31_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_32_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_33_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_34_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_35_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_36_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_37_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_38_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_39_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_40_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_41_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_42_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_43_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_44_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_45_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_46_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_47_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_48_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_49_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_50_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_51_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_52_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_53_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_54_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_55_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_56_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_57_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_58_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_59_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_60_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_61_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_62_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_63_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToCCS_64_64f, zulg64f);

ZULGEN_RTO(zulgDFTFwd_RToPack_2_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPack_3_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPack_4_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPack_5_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPack_6_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPack_7_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPack_8_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPack_9_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPack_10_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPack_11_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPack_12_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPack_13_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPack_14_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPack_15_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPack_16_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPack_17_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPack_18_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPack_19_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPack_20_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPack_21_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPack_22_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPack_23_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPack_24_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPack_25_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPack_26_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPack_27_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPack_28_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPack_29_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPack_30_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPack_31_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPack_32_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPack_33_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPack_34_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPack_35_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPack_36_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPack_37_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPack_38_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPack_39_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPack_40_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPack_41_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPack_42_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPack_43_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPack_44_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPack_45_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPack_46_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPack_47_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPack_48_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPack_49_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPack_50_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPack_51_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPack_52_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPack_53_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPack_54_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPack_55_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPack_56_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPack_57_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPack_58_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPack_59_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPack_60_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPack_61_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPack_62_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPack_63_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPack_64_64f, zulg64f);

ZULGEN_RTO(zulgDFTFwd_RToPerm_2_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_3_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_4_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_5_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_6_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_7_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_8_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_9_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_10_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_11_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_12_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_13_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_14_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_15_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_16_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_17_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_18_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_19_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_20_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_21_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_22_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_23_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_24_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_25_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_26_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_27_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_28_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_29_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_30_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_31_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_32_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_33_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_34_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_35_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_36_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_37_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_38_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_39_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_40_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_41_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_42_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_43_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_44_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_45_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_46_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_47_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_48_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_49_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_50_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_51_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_52_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_53_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_54_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_55_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_56_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_57_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_58_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_59_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_60_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_61_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_62_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_63_64f, zulg64f);
ZULGEN_RTO(zulgDFTFwd_RToPerm_64_64f, zulg64f);

#undef ZULGEN_RTO

#ifdef __cplusplus
}
#endif

#endif
