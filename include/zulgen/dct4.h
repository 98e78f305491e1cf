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
 * or, in memory of the caller's own:
 *
 *   int size;
 *   if (zulgDCT4GetSize_32f(1024, &size) != ZULG_OK) ...
 *   block = aligned_alloc(32, size);              a block aligned on 32 bytes, or of size + 32
 *   if (zulgDCT4Init_32f(&spec, 1024, block) != ZULG_OK) ...
 *   zulgDCT4_32f(src, dst, spec);
 *   free(block);                                  no zulgDCT4Free
 *
 * The two ways don't mix.
 *
 * Different plans may be used from different threads at once. A plan of more than 32 samples holds
 * work buffers, so two calls must not run with it at the same time; a shorter one is only read.
 *
 * Lengths. GetSize refuses what has no plan, except for these, which it accepts, as InitAlloc and
 * Init do:
 *
 *   2^k + 1    for k = 5 to 26 in _32f, 3 to 25 in _64f. Of no use: the plan is that of 2^k, it doesn't
 *              compute a DCT-IV, and it reads and writes one element behind the arrays.
 *   2^30 and 2^30 + 1, in _64f also 2^29 and 2^29 + 1
 *              Never use them: the size has overflowed. InitAlloc takes a block of that size, which
 *              doesn't even hold the samples, and writes beyond it.
 *
 * A program that gets its length from outside refuses all but the powers of two in the range above. */
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
 * Returns ZULG_OK; ZULG_ERR_SIZE, with *size as it was, if the length has no plan. Above are the
 * lengths that it accepts all the same. */
zulgResult zulgDCT4GetSize_32f(int n, int* size);
zulgResult zulgDCT4GetSize_64f(int n, int* size);

/* Makes a plan in `buffer`, which has to stay where it is for as long as the plan is used. It has the
 * size that zulgDCT4GetSize tells and is aligned on 32 bytes, or it is 32 bytes longer and may lie
 * anywhere: the plan begins at a multiple of 32. It holds all that the plan needs. Takes about n
 * sines and cosines and calls nothing but these; slow beside a transform.
 *
 * The length is one that zulgDCT4GetSize has accepted. Init knows neither the size of the buffer nor
 * where the sizes overflow: from 2^27 on, in _64f from 2^26 on, it writes beyond any buffer, also for
 * lengths that GetSize refuses.
 *
 * Returns ZULG_OK; ZULG_ERR_NULL_PTR, with nothing written, if a pointer is null; ZULG_ERR_SIZE if the
 * length has no plan. Then *spec is as it was, but the buffer has been written to. */
zulgResult zulgDCT4Init_32f(zulgDCT4Spec_32f** spec, int n, unsigned char* buffer);
zulgResult zulgDCT4Init_64f(zulgDCT4Spec_64f** spec, int n, unsigned char* buffer);

/* Makes a plan in a block from zulMalloc. Ends with zulgDCT4Free.
 *
 * Looks at the pointer first, then at the length, then for memory. Returns ZULG_OK;
 * ZULG_ERR_NULL_PTR if the pointer is null; ZULG_ERR_SIZE if the length has no plan;
 * ZULG_ERR_NULL_PTR if there is no memory. After an error *spec is as it was, and nothing is
 * allocated. */
zulgResult zulgDCT4InitAlloc_32f(zulgDCT4Spec_32f** spec, int n);
zulgResult zulgDCT4InitAlloc_64f(zulgDCT4Spec_64f** spec, int n);

/* Ends a plan from zulgDCT4InitAlloc and gives its block to zulFree.
 *
 * Returns ZULG_OK; ZULG_ERR_NULL_PTR if the pointer is null. Nothing else is noticed. */
zulgResult zulgDCT4Free_32f(zulgDCT4Spec_32f* spec);
zulgResult zulgDCT4Free_64f(zulgDCT4Spec_64f* spec);

/* Transforms n samples of src, in natural order, into n samples of dst, in natural order. dst may
 * be src; arrays that overlap otherwise are not served. Pointers need the alignment of a sample.
 * The plan's work buffers are written if n is above 32, so `spec` is no pointer to const.
 *
 * Returns ZULG_OK; ZULG_ERR_NULL_PTR if a pointer is null; ZULG_ERR_CONTEXT if *spec is no plan, as
 * far as one number in it shows. Most of what is no plan isn't noticed: one that has been freed or
 * moved, or one of the other sample type, is used as if it were right. After an error dst is as it
 * was. Infinities and NaNs go through the arithmetic. */
zulgResult zulgDCT4_32f(const zulg32f* src, zulg32f* dst, zulgDCT4Spec_32f* spec);
zulgResult zulgDCT4_64f(const zulg64f* src, zulg64f* dst, zulgDCT4Spec_64f* spec);

#ifdef __cplusplus
}
#endif

#endif
