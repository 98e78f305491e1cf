/* The four-step method. With N = 64 * 32, n = 32 r + c and k = q + 64 p,
 *
 *   X[q + 64 p] = sum over c of  w32^(c p)  *  wN^(c q)  *  sum over r of  x[32 r + c] w64^(r q)
 *                 4. transpose   3. rows       2. twiddle   1. columns
 *
 * where wL = exp(-2 pi i / L): the input is read as a matrix of 64 rows and 32 columns, every
 * column is transformed, then every row. The inverse conjugates all three w. */
#include "long_dft.h"

#include <math.h>
#include <stddef.h>

typedef zulgResult Kernel(const zulg32fc* src, zulg32fc* dst, zulgScaleFlag flag);

static const double kPi = 3.14159265358979323846;

void long_dft_init(LongDft* dft) {
  for (int q = 0; q < LONG_DFT_ROWS; ++q) {
    for (int c = 0; c < LONG_DFT_COLUMNS; ++c) {
      const double angle = -2 * kPi * q * c / LONG_DFT_LENGTH;
      dft->twiddle[q][c].re = cos(angle);
      dft->twiddle[q][c].im = sin(angle);
    }
  }
}

/* `sign` is that of the twiddle factors' angle relative to the table. As the factor that a flag
 * selects is a power of the length, that of 64 times that of 32 is that of 2048. */
static zulgResult transform(const LongDft* dft, const zulg32fc* src, zulg32fc* dst,
                            zulgScaleFlag flag, Kernel* column_dft, Kernel* row_dft, float sign) {
  /* On 16 bytes, where the kernels are fastest. Rows and columns are multiples of 16 bytes. */
  zulg32fc column[LONG_DFT_ROWS] __attribute__((aligned(16)));
  zulg32fc matrix[LONG_DFT_ROWS][LONG_DFT_COLUMNS] __attribute__((aligned(16)));
  if (src == NULL || dst == NULL) return ZULG_ERR_NULL_PTR;

  for (int c = 0; c < LONG_DFT_COLUMNS; ++c) {
    for (int r = 0; r < LONG_DFT_ROWS; ++r) column[r] = src[LONG_DFT_COLUMNS * r + c];
    const zulgResult result = column_dft(column, column, flag);
    if (result != ZULG_OK) return result;
    for (int q = 0; q < LONG_DFT_ROWS; ++q) {
      const zulg32fc w = {dft->twiddle[q][c].re, sign * dft->twiddle[q][c].im};
      matrix[q][c].re = column[q].re * w.re - column[q].im * w.im;
      matrix[q][c].im = column[q].re * w.im + column[q].im * w.re;
    }
  }
  for (int q = 0; q < LONG_DFT_ROWS; ++q) {
    const zulgResult result = row_dft(matrix[q], matrix[q], flag);
    if (result != ZULG_OK) return result;
  }
  for (int p = 0; p < LONG_DFT_COLUMNS; ++p) {
    for (int q = 0; q < LONG_DFT_ROWS; ++q) dst[q + LONG_DFT_ROWS * p] = matrix[q][p];
  }
  return ZULG_OK;
}

zulgResult long_dft_forward(const LongDft* dft, const zulg32fc* src, zulg32fc* dst,
                            zulgScaleFlag flag) {
  return transform(dft, src, dst, flag, zulgDFTFwd_CToC_64_32fc, zulgDFTFwd_CToC_32_32fc, 1);
}

zulgResult long_dft_inverse(const LongDft* dft, const zulg32fc* src, zulg32fc* dst,
                            zulgScaleFlag flag) {
  return transform(dft, src, dst, flag, zulgDFTInv_CToC_64_32fc, zulgDFTInv_CToC_32_32fc, -1);
}
