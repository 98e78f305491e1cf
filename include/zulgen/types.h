/* Result codes, scale flags and sample types. */
#ifndef ZULGEN_TYPES_H
#define ZULGEN_TYPES_H

/* What a function returns: ZULG_OK, or the reason why it did nothing. There is no other value. A
 * call that fails has written nothing. */
typedef int zulgResult;

#define ZULG_OK 0             /* the operation completed */
#define ZULG_ERR_CONTEXT (-5) /* a plan isn't what the function expects */
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
 * A forward and an inverse DFT with the same flag of the first three give back the input; with
 * ZULG_SCALE_NONE, N times the input. So does a self-inverse transform called twice with
 * ZULG_SCALE_BY_SQRT_N, or once with 1/N and once with 1. The factor is a constant of the sample type, the nearest to
 * the quotient or root, and is multiplied into every output last, also if it is 1.
 *
 * Errors are found in this order: null pointers first, then the flag. */
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
