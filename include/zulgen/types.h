/* Result codes, scale flags and sample types. */
#ifndef ZULGEN_TYPES_H
#define ZULGEN_TYPES_H

/* What a function returns: ZULG_OK, or the reason why it did not do its work. There is no other
 * value. A call that fails has written nothing, except for zulgDCT4Init: see zulgen/dct4.h. */
typedef int zulgResult;

#define ZULG_OK 0             /* the operation completed */
#define ZULG_ERR_CONTEXT (-5) /* a plan isn't what the function expects; seldom noticed */
#define ZULG_ERR_SIZE (-6)    /* a length or order out of range, or one that has no plan */
#define ZULG_ERR_NULL_PTR (-8) /* a required pointer is null */
#define ZULG_ERR_FLAG (-16)   /* the scale flag is not one of the four below */

/* The factor that a transform multiplies its result by: exactly one of these four. They are no bits
 * to be combined. N is the number of points.
 *
 *                          forward DFT   inverse DFT   Hartley, Walsh-Hadamard
 *   ZULG_SCALE_FWD_BY_N    1/N           1             1/N
 *   ZULG_SCALE_INV_BY_N    1             1/N           1/N
 *   ZULG_SCALE_BY_SQRT_N   1/sqrt(N)     1/sqrt(N)     1/sqrt(N)
 *   ZULG_SCALE_NONE        1             1             1
 *
 * A forward and an inverse DFT, both with the same flag: one of the first three gives back the input,
 * ZULG_SCALE_NONE gives N times the input. Hartley and Walsh-Hadamard transforms are their own
 * inverses: what gives back the input is ZULG_SCALE_BY_SQRT_N twice, or 1/N once and
 * ZULG_SCALE_NONE once. ZULG_SCALE_NONE twice gives N times the input, 1/N twice an N-th of it.
 *
 * The factor is the value that 1.0 / N or 1.0 / sqrt(N) has in double precision, rounded to float in
 * _32f and _32fc. Of the lengths 2 to 64, 1.0 / sqrt(N) in double is not the double nearest to the
 * root at 18, by one unit in the last place. Every output is multiplied by the factor, also if that
 * is 1. This is the last operation on it, except in forward real kernels: there a change of sign may
 * follow, and in _32f the product may be one in double that is then rounded to float.
 *
 * Errors are found in this order: a length that is an argument, null pointers, the flag. */
typedef int zulgScaleFlag;

#define ZULG_SCALE_FWD_BY_N 1
#define ZULG_SCALE_INV_BY_N 2
#define ZULG_SCALE_BY_SQRT_N 4
#define ZULG_SCALE_NONE 8

/* Samples: IEEE 754 single and double precision. Complex samples are interleaved, real part
 * first. A function's last letters tell which type its data have. */
typedef float zulg32f;
typedef double zulg64f;
typedef struct zulg32fc {
  zulg32f re;
  zulg32f im;
} zulg32fc;
typedef struct zulg64fc {
  zulg64f re;
  zulg64f im;
} zulg64fc;

#endif
