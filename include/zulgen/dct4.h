/* Discrete cosine transform of type IV (DCT-IV) of a length chosen at run time:
 *
 *   dst[k] = sum over j of src[j] * cos(pi / n * (j + 1/2) * (k + 1/2)),   j, k = 0 to n - 1
 *
 * There is no scale factor: applied twice, the transform gives n / 2 times its input. Lengths are
 * the powers of two from 2 to 67108864 in _32f, and to 33554432 in _64f.
 *
 * A transform is planned once for its length, and then run any number of times:
 *
 *   zulgDCT4Spec_32f* spec;
 *   if (zulgDCT4InitAlloc_32f(&spec, 1024) != ZULG_OK) ...
 *   zulgDCT4_32f(src, dst, spec);
 *   zulgDCT4Free_32f(spec);
 *
 * or, in memory of the caller's own: zulgDCT4GetSize_32f, zulgDCT4Init_32f in a block of that size,
 * and nothing to be freed but the block. The two ways don't mix.
 *
 * Different plans may be used from different threads at once. One plan serves one call at a time if
 * its length is above 32, since it holds work buffers; a shorter one may be shared. */
#ifndef ZULGEN_DCT4_H
#define ZULGEN_DCT4_H

#include "zulgen/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* A plan. It lives in its block and points into it, so the block can't be moved or copied. */
typedef struct zulgDCT4Spec_32f zulgDCT4Spec_32f;
typedef struct zulgDCT4Spec_64f zulgDCT4Spec_64f;

/* The bytes of a plan's block: stores them in *size, which is not tested for null.
 *
 * Returns ZULG_OK; ZULG_ERR_SIZE, with *size as it was, if the length has no plan. The lengths
 * 2^k + 1 from 33 (_64f: 9) on are not refused, nor are 2^30 and in _64f 2^29, though they are of no
 * use: a plan of the former doesn't compute a DCT-IV, and reads and writes an element behind the
 * arrays; of the latter even the size has overflowed. */
zulgResult zulgDCT4GetSize_32f(int n, int* size);
zulgResult zulgDCT4GetSize_64f(int n, int* size);

/* Makes a plan in `buffer`, of the size that zulgDCT4GetSize tells and any alignment, which has to
 * stay where it is for as long as the plan is used. It holds all that the plan needs. Takes about n
 * sines and cosines and calls nothing but these; slow beside a transform.
 *
 * Returns ZULG_OK; ZULG_ERR_NULL_PTR if a pointer is null; ZULG_ERR_SIZE if the length has no plan.
 * After an error *spec is as it was; after ZULG_ERR_SIZE part of the buffer has been written. */
zulgResult zulgDCT4Init_32f(zulgDCT4Spec_32f** spec, int n, unsigned char* buffer);
zulgResult zulgDCT4Init_64f(zulgDCT4Spec_64f** spec, int n, unsigned char* buffer);

/* Makes a plan in a block from zulMalloc. Ends with zulgDCT4Free.
 *
 * Returns ZULG_OK; ZULG_ERR_NULL_PTR if the pointer is null, or if there is no memory;
 * ZULG_ERR_SIZE if the length has no plan. After an error *spec is as it was, and nothing is
 * allocated. */
zulgResult zulgDCT4InitAlloc_32f(zulgDCT4Spec_32f** spec, int n);
zulgResult zulgDCT4InitAlloc_64f(zulgDCT4Spec_64f** spec, int n);

/* Ends a plan from zulgDCT4InitAlloc and gives its block to zulFree.
 *
 * Returns ZULG_OK; ZULG_ERR_NULL_PTR if the pointer is null. */
zulgResult zulgDCT4Free_32f(zulgDCT4Spec_32f* spec);
zulgResult zulgDCT4Free_64f(zulgDCT4Spec_64f* spec);

/* Transforms n samples of src, in natural order, into n samples of dst, in natural order. dst may
 * be src; arrays that overlap otherwise are not served. Pointers need the alignment of a sample.
 * The plan's work buffers are written if n is above 32, so `spec` is no pointer to const.
 *
 * Returns ZULG_OK; ZULG_ERR_NULL_PTR if a pointer is null; ZULG_ERR_CONTEXT if *spec is no plan.
 * After an error dst is as it was. Infinities and NaNs go through the arithmetic. */
zulgResult zulgDCT4_32f(const zulg32f* src, zulg32f* dst, zulgDCT4Spec_32f* spec);
zulgResult zulgDCT4_64f(const zulg64f* src, zulg64f* dst, zulgDCT4Spec_64f* spec);

#ifdef __cplusplus
}
#endif

#endif
