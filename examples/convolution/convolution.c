/* convolution: how to filter a long signal by transforms of 64 points.
 *
 * Overlap-save: an FIR filter of 33 taps needs 32 samples of the past, so every transform of 64
 * samples gives 32 samples of output. The circular convolution that comes of multiplying spectra
 * is wrong in the first 32 places alone, which are dropped.
 *
 * Prints the largest difference from the direct sum, and what the filter does to two tones. Fails
 * if either is not as it must be. */
#include <math.h>

#include "program.h"
#include "zulgen.h"

enum {
  N = 64,
  TAPS = 33,
  STEP = N - TAPS + 1, /* new samples a transform */
  RATE = 48000,        /* a second, and the length of the signal */
  TONE_COUNT = 2
};

static const Program kProgram = {"convolution", "", 0,
                                 "Filters a signal by transforms of 64 points."};

static const double kPi = 3.14159265358979323846;
static const double kCutoff = 4000.0 / RATE;
static const double kTones[TONE_COUNT] = {1000.0 / RATE, 12000.0 / RATE};
static const double kUnit = 1.0 / (1 << 24); /* of a float's rounding */

typedef struct Work {
  zulg32f signal[TAPS - 1 + RATE]; /* silence first: the past of the first output */
  zulg32f filtered[RATE];
  zulg32f taps[N]; /* zeros fill it up */
  zulg32f response[N];
} Work;

/* A low-pass filter: a sinc under a Blackman window. */
static void design_filter(zulg32f* taps) {
  for (int j = 0; j < TAPS; ++j) {
    const double t = j - (TAPS - 1) / 2;
    const double sinc = t == 0 ? 2 * kCutoff : sin(2 * kPi * kCutoff * t) / (kPi * t);
    const double turn = 2 * kPi * (j + 1) / (TAPS + 1);
    taps[j] = sinc * (0.42 - 0.5 * cos(turn) + 0.08 * cos(2 * turn));
  }
}

/* y = y * h, both in the Perm layout: the two real bins, 0 and N/2, stand in front. */
static void multiply_spectra(zulg32f* y, const zulg32f* h) {
  y[0] *= h[0];
  y[1] *= h[1];
  for (int i = 2; i < N; i += 2) {
    const float re = y[i] * h[i] - y[i + 1] * h[i + 1];
    y[i + 1] = y[i] * h[i + 1] + y[i + 1] * h[i];
    y[i] = re;
  }
}

static zulgResult filter_blocks(Work* work) {
  zulg32f block[N];
  zulgResult result = zulgDFTFwd_RToPerm_64_32f(work->taps, work->response, ZULG_SCALE_INV_BY_N);
  for (int start = 0; result == ZULG_OK && start < RATE; start += STEP) {
    result = zulgDFTFwd_RToPerm_64_32f(work->signal + start, block, ZULG_SCALE_INV_BY_N);
    if (result != ZULG_OK) break;
    multiply_spectra(block, work->response);
    result = zulgDFTInv_PermToR_64_32f(block, block, ZULG_SCALE_INV_BY_N);
    for (int i = 0; i < STEP; ++i) work->filtered[start + i] = block[TAPS - 1 + i];
  }
  return result;
}

static double worst_difference(const Work* work) {
  double worst = 0;
  for (int n = 0; n < RATE; ++n) {
    double sum = 0;
    for (int j = 0; j < TAPS; ++j) sum += (double)work->taps[j] * work->signal[TAPS - 1 + n - j];
    worst = fmax(worst, fabs(sum - work->filtered[n]));
  }
  return worst;
}

/* What the differences can't exceed. The norm of a block is X; every block of the signal has
 * |x| <= 1, so X <= 8. A transform of 64 goes through 6 levels, each of which rounds a product and
 * a sum, and through the scale: relative to the norm of its result it is wrong by 13 u at most. The
 * spectrum of the signal, the product (sqrt(5) u) and the inverse are multiplied by the largest
 * |H|. An error of the response is multiplied by X, and sqrt(64) times the norm of the taps is the
 * norm of the response. No sample is wrong by more than its block's norm. */
static double allowed_difference(const Work* work) {
  double power = 0, sum = 0;
  for (int j = 0; j < TAPS; ++j) {
    power += work->taps[j] * work->taps[j];
    sum += fabs(work->taps[j]); /* |H| can't exceed it */
  }
  return kUnit * 8 * ((13 + sqrt(5) + 13) * sum + 13 * 8 * sqrt(power));
}

/* The amplitude of a tone in samples that hold whole periods of it. */
static double amplitude(const zulg32f* samples, int count, double frequency) {
  double re = 0, im = 0;
  for (int n = 0; n < count; ++n) {
    re += samples[n] * cos(2 * kPi * frequency * n);
    im -= samples[n] * sin(2 * kPi * frequency * n);
  }
  return 2 * hypot(re, im) / count;
}

/* |H| by its definition, from the taps. */
static double designed_gain(const zulg32f* taps, double frequency) {
  double re = 0, im = 0;
  for (int j = 0; j < TAPS; ++j) {
    re += taps[j] * cos(2 * kPi * frequency * j);
    im -= taps[j] * sin(2 * kPi * frequency * j);
  }
  return hypot(re, im);
}

/* Returns whether everything is as it must be. */
static int run(Work* work) {
  for (int n = 0; n < RATE; ++n)
    work->signal[TAPS - 1 + n] =
        0.5 * cos(2 * kPi * kTones[0] * n) + 0.5 * cos(2 * kPi * kTones[1] * n);
  design_filter(work->taps);
  if (filter_blocks(work) != ZULG_OK) return 0;

  const double worst = worst_difference(work);
  const double allowed = allowed_difference(work);
  printf("%d samples through %d taps, %d transforms each way\n", RATE, TAPS, RATE / STEP);
  printf("largest difference from the direct sum: %.2e, allowed %.2e\n\n", worst, allowed);
  int is_right = worst <= allowed;

  /* 48 samples hold whole periods; in the first of them the filter is still filling. */
  enum { START = 48, COUNT = RATE - START };
  printf("    tone      gain  designed\n");
  for (int i = 0; i < TONE_COUNT; ++i) {
    const double gain = amplitude(work->filtered + START, COUNT, kTones[i]) /
                        amplitude(work->signal + TAPS - 1 + START, COUNT, kTones[i]);
    const double designed = designed_gain(work->taps, kTones[i]);
    printf("%5.0f Hz  %5.1f dB  %5.1f dB\n", kTones[i] * RATE, 20 * log10(gain),
           20 * log10(designed));
    /* Amplitudes are twice a mean, and relative to 0.5: four times a sample's error, and the
     * signal's own rounding on its way through. */
    if (!(fabs(gain - designed) <= 4 * (allowed + 2 * kUnit))) is_right = 0;
  }
  return is_right;
}

int main(int argc, char** argv) {
  program_operands(&kProgram, argc, argv);
  Work* work = calloc(1, sizeof *work);
  if (work == NULL) return complain(&kProgram, NULL, "there is no memory");
  int status = EXIT_SUCCESS;
  if (!run(work)) status = complain(&kProgram, NULL, "the result is not as exact as it must be");
  free(work);
  return program_end(&kProgram, status);
}
