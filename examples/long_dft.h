/* Complex DFT of 2048 points, put together from the library's transforms of 64 and 32. */
#ifndef EXAMPLES_LONG_DFT_H
#define EXAMPLES_LONG_DFT_H

#include "zulgen.h"

enum { LONG_DFT_ROWS = 64, LONG_DFT_COLUMNS = 32, LONG_DFT_LENGTH = 2048 };

/* What both directions share. Read only once it is made, so threads may share it too. */
typedef struct LongDft {
  zulg32fc twiddle[LONG_DFT_ROWS][LONG_DFT_COLUMNS]; /* exp(-2 pi i row column / 2048) */
} LongDft;

void long_dft_init(LongDft* dft);

/* dst and src hold 2048 samples in natural order; dst may be src. The flag has the meaning that it
 * has for the library's own transforms, with N = 2048. The result codes are theirs as well. */
zulgResult long_dft_forward(const LongDft* dft, const zulg32fc* src, zulg32fc* dst,
                            zulgScaleFlag flag);
zulgResult long_dft_inverse(const LongDft* dft, const zulg32fc* src, zulg32fc* dst,
                            zulgScaleFlag flag);

#endif
