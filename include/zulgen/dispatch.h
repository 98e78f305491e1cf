/* Transforms of a length that is known at run time only: one entry for all kernels of a family.
 *
 *   zulgDFTFwd_CToC_32fc(src, dst, 12, flag)  does what  zulgDFTFwd_CToC_12_32fc(src, dst, flag)  does
 *
 * and so for every function whose name has a length or an order. The sizes and layouts of the arrays, alignment
 * and in-place use are those of the kernel that is called.
 *
 *   length  2 to 64
 *   order   of the Walsh-Hadamard transform: 1 to 13
 *   work    its work buffer, or null
 *   flag    the scale flag
 *
 * Returns ZULG_ERR_SIZE, whatever the other arguments are, if there is no kernel of that length or
 * order; else what the kernel returns. After an error dst is as it was.
 *
 * The kernel is found by one look into a constant table: a call takes about two cycles more than a
 * call of the kernel by its name. Re-entrant. */
#ifndef ZULGEN_DISPATCH_H
#define ZULGEN_DISPATCH_H

#include "zulgen/types.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZULGEN_BY_LENGTH(name, sample) \
  zulgResult name(const sample* src, sample* dst, int length, zulgScaleFlag flag)

ZULGEN_BY_LENGTH(zulgDFTFwd_CToC_32fc, zulg32fc);
ZULGEN_BY_LENGTH(zulgDFTFwd_CToC_64fc, zulg64fc);
ZULGEN_BY_LENGTH(zulgDFTInv_CToC_32fc, zulg32fc);
ZULGEN_BY_LENGTH(zulgDFTInv_CToC_64fc, zulg64fc);
ZULGEN_BY_LENGTH(zulgDFTFwd_RToCCS_32f, zulg32f);
ZULGEN_BY_LENGTH(zulgDFTFwd_RToCCS_64f, zulg64f);
ZULGEN_BY_LENGTH(zulgDFTFwd_RToPack_32f, zulg32f);
ZULGEN_BY_LENGTH(zulgDFTFwd_RToPack_64f, zulg64f);
ZULGEN_BY_LENGTH(zulgDFTFwd_RToPerm_32f, zulg32f);
ZULGEN_BY_LENGTH(zulgDFTFwd_RToPerm_64f, zulg64f);
ZULGEN_BY_LENGTH(zulgDFTInv_CCSToR_32f, zulg32f);
ZULGEN_BY_LENGTH(zulgDFTInv_CCSToR_64f, zulg64f);
ZULGEN_BY_LENGTH(zulgDFTInv_PackToR_32f, zulg32f);
ZULGEN_BY_LENGTH(zulgDFTInv_PackToR_64f, zulg64f);
ZULGEN_BY_LENGTH(zulgDFTInv_PermToR_32f, zulg32f);
ZULGEN_BY_LENGTH(zulgDFTInv_PermToR_64f, zulg64f);
ZULGEN_BY_LENGTH(zulgHartley_32f, zulg32f);
ZULGEN_BY_LENGTH(zulgHartley_64f, zulg64f);

zulgResult zulgWHT_32f(const zulg32f* src, zulg32f* dst, int order, zulgScaleFlag flag, void* work);
zulgResult zulgWHT_64f(const zulg64f* src, zulg64f* dst, int order, zulgScaleFlag flag, void* work);

#undef ZULGEN_BY_LENGTH

#ifdef __cplusplus
}
#endif

#endif
