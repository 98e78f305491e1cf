/* Real DFT of 2048 samples, put together from the library's transforms of 64 and 32. */
#ifndef EXAMPLES_LONG_DFT_H
#define EXAMPLES_LONG_DFT_H

#include "zulgen.h"

enum {
  LONG_DFT_ROWS = 64,
  LONG_DFT_COLUMNS = 32,
  LONG_DFT_LENGTH = 2048,
  LONG_DFT_BINS = LONG_DFT_LENGTH / 2 + 1
};

/* What both directions share. Read only once it is made, so threads may share it too. */
typedef struct LongDft {
  zulg32fc twiddle[LONG_DFT_ROWS / 2 + 1][LONG_DFT_COLUMNS]; /* exp(-2 pi i row column / 2048) */
} LongDft;

void long_dft_init(LongDft* dft);

/* 2048 samples to the bins 0 to 1024, and back; the other bins are conjugates of these. The flag
 * has the meaning that it has for the library's own transforms, with N = 2048. The result codes are
 * theirs as well. */
zulgResult long_dft_forward(const LongDft* dft, const zulg32f* samples, zulg32fc* bins,
                            zulgScaleFlag flag);
zulgResult long_dft_inverse(const LongDft* dft, const zulg32fc* bins, zulg32f* samples,
                            zulgScaleFlag flag);

#endif
