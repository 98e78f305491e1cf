/* Discrete Hartley transform of fixed length N = 2 to 64, in single precision (_32f) and double
 * (_64f):
 *
 *   zulgHartley_N_32f    dst[k] = s * sum over n of src[n] * (cos(2 pi n k / N) + sin(2 pi n k / N))
 *
 * with n and k from 0 to N - 1 and s the factor that the flag selects (zulgen/types.h):
 * ZULG_SCALE_FWD_BY_N and ZULG_SCALE_INV_BY_N are both 1/N. The transform is its own inverse up to
 * the factor: twice with ZULG_SCALE_BY_SQRT_N, or once with 1/N and once with ZULG_SCALE_NONE, gives
 * back the samples; twice with ZULG_SCALE_NONE gives N times the samples.
 *
 *   src    N samples
 *   dst    N values; may be src. Arrays that overlap otherwise are not served.
 *   flag   the scale flag
 *
 * Returns ZULG_OK; ZULG_ERR_NULL_PTR if a pointer is null; ZULG_ERR_FLAG if the flag is none of the
 * four. After an error dst is as it was.
 *
 * Pointers need the alignment of an element alone. _32f sums products in double precision.
 * Re-entrant. */
#ifndef ZULGEN_HARTLEY_H
#define ZULGEN_HARTLEY_H

#include "zulgen/types.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZULGEN_HARTLEY(name, sample) \
  zulgResult name(const sample* src, sample* dst, zulgScaleFlag flag)

ZULGEN_HARTLEY(zulgHartley_2_32f, zulg32f);
ZULGEN_HARTLEY(zulgHartley_3_32f, zulg32f);
ZULGEN_HARTLEY(zulgHartley_4_32f, zulg32f);
ZULGEN_HARTLEY(zulgHartley_5_32f, zulg32f);
ZULGEN_HARTLEY(zulgHartley_6_32f, zulg32f);
ZULGEN_HARTLEY(zulgHartley_7_32f, zulg32f);
ZULGEN_HARTLEY(zulgHartley_8_32f, zulg32f);
ZULGEN_HARTLEY(zulgHartley_9_32f, zulg32f);
ZULGEN_HARTLEY(zulgHartley_10_32f, zulg32f);
ZULGEN_HARTLEY(zulgHartley_11_32f, zulg32f);
ZULGEN_HARTLEY(zulgHartley_12_32f, zulg32f);
ZULGEN_HARTLEY(zulgHartley_13_32f, zulg32f);
ZULGEN_HARTLEY(zulgHartley_14_32f, zulg32f);
ZULGEN_HARTLEY(zulgHartley_15_32f, zulg32f);
ZULGEN_HARTLEY(zulgHartley_16_32f, zulg32f);
ZULGEN_HARTLEY(zulgHartley_17_32f, zulg32f);
ZULGEN_HARTLEY(zulgHartley_18_32f, zulg32f);
ZULGEN_HARTLEY(zulgHartley_19_32f, zulg32f);
ZULGEN_HARTLEY(zulgHartley_20_32f, zulg32f);
ZULGEN_HARTLEY(zulgHartley_21_32f, zulg32f);
ZULGEN_HARTLEY(zulgHartley_22_32f, zulg32f);
ZULGEN_HARTLEY(zulgHartley_23_32f, zulg32f);
ZULGEN_HARTLEY(zulgHartley_24_32f, zulg32f);
ZULGEN_HARTLEY(zulgHartley_25_32f, zulg32f);
ZULGEN_HARTLEY(zulgHartley_26_32f, zulg32f);
ZULGEN_HARTLEY(zulgHartley_27_32f, zulg32f);
ZULGEN_HARTLEY(zulgHartley_28_32f, zulg32f);
ZULGEN_HARTLEY(zulgHartley_29_32f, zulg32f);
ZULGEN_HARTLEY(zulgHartley_30_32f, zulg32f);
ZULGEN_HARTLEY(zulgHartley_31_32f, zulg32f);
ZULGEN_HARTLEY(zulgHartley_32_32f, zulg32f);
ZULGEN_HARTLEY(zulgHartley_33_32f, zulg32f);
ZULGEN_HARTLEY(zulgHartley_34_32f, zulg32f);
ZULGEN_HARTLEY(zulgHartley_35_32f, zulg32f);
ZULGEN_HARTLEY(zulgHartley_36_32f, zulg32f);
ZULGEN_HARTLEY(zulgHartley_37_32f, zulg32f);
ZULGEN_HARTLEY(zulgHartley_38_32f, zulg32f);
ZULGEN_HARTLEY(zulgHartley_39_32f, zulg32f);
ZULGEN_HARTLEY(zulgHartley_40_32f, zulg32f);
ZULGEN_HARTLEY(zulgHartley_41_32f, zulg32f);
ZULGEN_HARTLEY(zulgHartley_42_32f, zulg32f);
ZULGEN_HARTLEY(zulgHartley_43_32f, zulg32f);
ZULGEN_HARTLEY(zulgHartley_44_32f, zulg32f);
ZULGEN_HARTLEY(zulgHartley_45_32f, zulg32f);
ZULGEN_HARTLEY(zulgHartley_46_32f, zulg32f);
ZULGEN_HARTLEY(zulgHartley_47_32f, zulg32f);
ZULGEN_HARTLEY(zulgHartley_48_32f, zulg32f);
ZULGEN_HARTLEY(zulgHartley_49_32f, zulg32f);
ZULGEN_HARTLEY(zulgHartley_50_32f, zulg32f);
ZULGEN_HARTLEY(zulgHartley_51_32f, zulg32f);
ZULGEN_HARTLEY(zulgHartley_52_32f, zulg32f);
ZULGEN_HARTLEY(zulgHartley_53_32f, zulg32f);
ZULGEN_HARTLEY(zulgHartley_54_32f, zulg32f);
ZULGEN_HARTLEY(zulgHartley_55_32f, zulg32f);
ZULGEN_HARTLEY(zulgHartley_56_32f, zulg32f);
ZULGEN_HARTLEY(zulgHartley_57_32f, zulg32f);
ZULGEN_HARTLEY(zulgHartley_58_32f, zulg32f);
ZULGEN_HARTLEY(zulgHartley_59_32f, zulg32f);
ZULGEN_HARTLEY(zulgHartley_60_32f, zulg32f);
ZULGEN_HARTLEY(zulgHartley_61_32f, zulg32f);
ZULGEN_HARTLEY(zulgHartley_62_32f, zulg32f);
ZULGEN_HARTLEY(zulgHartley_63_32f, zulg32f);
ZULGEN_HARTLEY(zulgHartley_64_32f, zulg32f);

ZULGEN_HARTLEY(zulgHartley_2_64f, zulg64f);
ZULGEN_HARTLEY(zulgHartley_3_64f, zulg64f);
ZULGEN_HARTLEY(zulgHartley_4_64f, zulg64f);
ZULGEN_HARTLEY(zulgHartley_5_64f, zulg64f);
ZULGEN_HARTLEY(zulgHartley_6_64f, zulg64f);
ZULGEN_HARTLEY(zulgHartley_7_64f, zulg64f);
ZULGEN_HARTLEY(zulgHartley_8_64f, zulg64f);
ZULGEN_HARTLEY(zulgHartley_9_64f, zulg64f);
ZULGEN_HARTLEY(zulgHartley_10_64f, zulg64f);
ZULGEN_HARTLEY(zulgHartley_11_64f, zulg64f);
ZULGEN_HARTLEY(zulgHartley_12_64f, zulg64f);
ZULGEN_HARTLEY(zulgHartley_13_64f, zulg64f);
ZULGEN_HARTLEY(zulgHartley_14_64f, zulg64f);
ZULGEN_HARTLEY(zulgHartley_15_64f, zulg64f);
ZULGEN_HARTLEY(zulgHartley_16_64f, zulg64f);
ZULGEN_HARTLEY(zulgHartley_17_64f, zulg64f);
ZULGEN_HARTLEY(zulgHartley_18_64f, zulg64f);
ZULGEN_HARTLEY(zulgHartley_19_64f, zulg64f);
ZULGEN_HARTLEY(zulgHartley_20_64f, zulg64f);
ZULGEN_HARTLEY(zulgHartley_21_64f, zulg64f);
ZULGEN_HARTLEY(zulgHartley_22_64f, zulg64f);
ZULGEN_HARTLEY(zulgHartley_23_64f, zulg64f);
ZULGEN_HARTLEY(zulgHartley_24_64f, zulg64f);
ZULGEN_HARTLEY(zulgHartley_25_64f, zulg64f);
ZULGEN_HARTLEY(zulgHartley_26_64f, zulg64f);
ZULGEN_HARTLEY(zulgHartley_27_64f, zulg64f);
ZULGEN_HARTLEY(zulgHartley_28_64f, zulg64f);
ZULGEN_HARTLEY(zulgHartley_29_64f, zulg64f);
ZULGEN_HARTLEY(zulgHartley_30_64f, zulg64f);
ZULGEN_HARTLEY(zulgHartley_31_64f, zulg64f);
ZULGEN_HARTLEY(zulgHartley_32_64f, zulg64f);
ZULGEN_HARTLEY(zulgHartley_33_64f, zulg64f);
ZULGEN_HARTLEY(zulgHartley_34_64f, zulg64f);
ZULGEN_HARTLEY(zulgHartley_35_64f, zulg64f);
ZULGEN_HARTLEY(zulgHartley_36_64f, zulg64f);
ZULGEN_HARTLEY(zulgHartley_37_64f, zulg64f);
ZULGEN_HARTLEY(zulgHartley_38_64f, zulg64f);
ZULGEN_HARTLEY(zulgHartley_39_64f, zulg64f);
ZULGEN_HARTLEY(zulgHartley_40_64f, zulg64f);
ZULGEN_HARTLEY(zulgHartley_41_64f, zulg64f);
ZULGEN_HARTLEY(zulgHartley_42_64f, zulg64f);
ZULGEN_HARTLEY(zulgHartley_43_64f, zulg64f);
ZULGEN_HARTLEY(zulgHartley_44_64f, zulg64f);
ZULGEN_HARTLEY(zulgHartley_45_64f, zulg64f);
ZULGEN_HARTLEY(zulgHartley_46_64f, zulg64f);
ZULGEN_HARTLEY(zulgHartley_47_64f, zulg64f);
ZULGEN_HARTLEY(zulgHartley_48_64f, zulg64f);
ZULGEN_HARTLEY(zulgHartley_49_64f, zulg64f);
ZULGEN_HARTLEY(zulgHartley_50_64f, zulg64f);
ZULGEN_HARTLEY(zulgHartley_51_64f, zulg64f);
ZULGEN_HARTLEY(zulgHartley_52_64f, zulg64f);
ZULGEN_HARTLEY(zulgHartley_53_64f, zulg64f);
ZULGEN_HARTLEY(zulgHartley_54_64f, zulg64f);
ZULGEN_HARTLEY(zulgHartley_55_64f, zulg64f);
ZULGEN_HARTLEY(zulgHartley_56_64f, zulg64f);
ZULGEN_HARTLEY(zulgHartley_57_64f, zulg64f);
ZULGEN_HARTLEY(zulgHartley_58_64f, zulg64f);
ZULGEN_HARTLEY(zulgHartley_59_64f, zulg64f);
ZULGEN_HARTLEY(zulgHartley_60_64f, zulg64f);
ZULGEN_HARTLEY(zulgHartley_61_64f, zulg64f);
ZULGEN_HARTLEY(zulgHartley_62_64f, zulg64f);
ZULGEN_HARTLEY(zulgHartley_63_64f, zulg64f);
ZULGEN_HARTLEY(zulgHartley_64_64f, zulg64f);

#undef ZULGEN_HARTLEY

#ifdef __cplusplus
}
#endif

#endif
