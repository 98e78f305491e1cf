/* The four-step method. With N = 64 * 32, n = 32 r + c and k = q + 64 p,
 *
 *   X[q + 64 p] = sum over c of  w32^(c p)  *  wN^(c q)  *  sum over r of  x[32 r + c] w64^(r q)
 *                 4. rows          3. twiddle            2. columns
 *
 * where wL = exp(-2 pi i / L): the input is read as a matrix of 64 rows and 32 columns, every
 * column is transformed, then every row. The columns are real, so of their bins q those up to 32
 * are enough; row 0 is real, too, and row q holds the conjugates of row 64 - q. The inverse goes
 * the other way, with all three w conjugated. */
#include "long_dft.h"

#include <math.h>
#include <stddef.h>

enum { HALF = LONG_DFT_ROWS / 2, ROWS = LONG_DFT_ROWS, COLUMNS = LONG_DFT_COLUMNS };

/* Row q at [q]; as CCS, a row or a column of real data is an array of complex bins. */
typedef zulg32fc Matrix[HALF + 1][COLUMNS] __attribute__((aligned(16)));

static const double kPi = 3.14159265358979323846;

void long_dft_init(LongDft* dft) {
  for (int q = 0; q <= HALF; ++q) {
    for (int c = 0; c < COLUMNS; ++c) {
      const double angle = -2 * kPi * q * c / LONG_DFT_LENGTH;
      dft->twiddle[q][c].re = cos(angle);
      dft->twiddle[q][c].im = sin(angle);
    }
  }
}

/* z times w, or times its conjugate if `sign` is -1. */
static zulg32fc turned(zulg32fc z, zulg32fc w, float sign) {
  const float im = sign * w.im;
  const zulg32fc product = {z.re * w.re - z.im * im, z.re * im + z.im * w.re};
  return product;
}

/* Bins of row q > 0: the first half stands at 64 p + q, the rest as conjugates on the way back. */
static void spread_row(int q, const zulg32fc* row, zulg32fc* bins) {
  for (int p = 0; p < COLUMNS; ++p) {
    const int k = q + ROWS * p;
    if (k < LONG_DFT_BINS) {
      bins[k] = row[p];
    } else {
      bins[LONG_DFT_LENGTH - k].re = row[p].re;
      bins[LONG_DFT_LENGTH - k].im = -row[p].im;
    }
  }
}

static void gather_row(int q, const zulg32fc* bins, zulg32fc* row) {
  for (int p = 0; p < COLUMNS; ++p) {
    const int k = q + ROWS * p;
    row[p] = bins[k < LONG_DFT_BINS ? k : LONG_DFT_LENGTH - k];
    if (k >= LONG_DFT_BINS) row[p].im = -row[p].im;
  }
}

zulgResult long_dft_forward(const LongDft* dft, const zulg32f* samples, zulg32fc* bins,
                            zulgScaleFlag flag) {
  zulg32f column[ROWS], first_row[COLUMNS];
  zulg32fc column_bins[HALF + 1], first_bins[COLUMNS / 2 + 1];
  Matrix matrix;
  zulgResult result;
  if (samples == NULL || bins == NULL) return ZULG_ERR_NULL_PTR;

  for (int c = 0; c < COLUMNS; ++c) {
    for (int r = 0; r < ROWS; ++r) column[r] = samples[COLUMNS * r + c];
    result = zulgDFTFwd_RToCCS_64_32f(column, (zulg32f*)column_bins, flag);
    if (result != ZULG_OK) return result;
    first_row[c] = column_bins[0].re;
    for (int q = 1; q <= HALF; ++q) matrix[q][c] = turned(column_bins[q], dft->twiddle[q][c], 1);
  }
  result = zulgDFTFwd_RToCCS_32_32f(first_row, (zulg32f*)first_bins, flag);
  if (result != ZULG_OK) return result;
  for (int p = 0; p <= COLUMNS / 2; ++p) bins[ROWS * p] = first_bins[p];
  for (int q = 1; q <= HALF; ++q) {
    result = zulgDFTFwd_CToC_32_32fc(matrix[q], matrix[q], flag);
    if (result != ZULG_OK) return result;
    spread_row(q, matrix[q], bins);
  }
  return ZULG_OK;
}

zulgResult long_dft_inverse(const LongDft* dft, const zulg32fc* bins, zulg32f* samples,
                            zulgScaleFlag flag) {
  zulg32f column[ROWS], first_row[COLUMNS];
  zulg32fc column_bins[HALF + 1], first_bins[COLUMNS / 2 + 1];
  Matrix matrix;
  zulgResult result;
  if (samples == NULL || bins == NULL) return ZULG_ERR_NULL_PTR;

  for (int p = 0; p <= COLUMNS / 2; ++p) first_bins[p] = bins[ROWS * p];
  result = zulgDFTInv_CCSToR_32_32f((const zulg32f*)first_bins, first_row, flag);
  if (result != ZULG_OK) return result;
  for (int q = 1; q <= HALF; ++q) {
    gather_row(q, bins, matrix[q]);
    result = zulgDFTInv_CToC_32_32fc(matrix[q], matrix[q], flag);
    if (result != ZULG_OK) return result;
  }
  for (int c = 0; c < COLUMNS; ++c) {
    column_bins[0].re = first_row[c];
    column_bins[0].im = 0;
    for (int q = 1; q <= HALF; ++q) column_bins[q] = turned(matrix[q][c], dft->twiddle[q][c], -1);
    result = zulgDFTInv_CCSToR_64_32f((const zulg32f*)column_bins, column, flag);
    if (result != ZULG_OK) return result;
    for (int r = 0; r < ROWS; ++r) samples[COLUMNS * r + c] = column[r];
  }
  return ZULG_OK;
}
