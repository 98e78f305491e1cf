/* mdct: how to code a recording by the windowed MDCT, whose core is a DCT-IV.
 *
 *   mdct [recording.wav]
 *
 * Frames of 512 samples, 256 apart, give 256 coefficients each. Folding a frame makes time-domain
 * aliases; those of two neighbours cancel when they overlap again, and the recording is back. The
 * coefficients are then quantised, and their bits are compared with those of samples quantised as
 * finely. Exits with 0; with 1 if a check fails or the file can't be read. */
#include <math.h>
#include <stdio.h>
#include <stdlib.h>

#include "wav.h"
#include "zulgen.h"

enum { HALF = 256, FRAME = 2 * HALF, LEVELS = 1 << 18 };

static const double kPi = 3.14159265358979323846;
static const double kUnit = 1.0 / (1 << 24); /* of a float's rounding */

/* Twice the DCT-IV gives HALF / 2 times its input: this factor makes it orthogonal. */
static const zulg32f kScale = 0.08838834764831845f; /* sqrt(2 / HALF) */

typedef struct Mdct {
  zulgDCT4Spec_32f* plan;
  zulg32f window[FRAME]; /* a sine: window[i]^2 + window[i + HALF]^2 is 1 */
} Mdct;

/* With a frame of quarters a, b, c, d and r for "reversed": the DCT-IV of (-c_r - d, a - b_r). */
static zulgResult analyse(const Mdct* mdct, const zulg32f* frame, zulg32f* coefficients) {
  zulg32f x[FRAME];
  const int q = HALF / 2;
  for (int i = 0; i < FRAME; ++i) x[i] = frame[i] * mdct->window[i];
  for (int i = 0; i < q; ++i) {
    coefficients[i] = -x[3 * q - 1 - i] - x[3 * q + i];
    coefficients[q + i] = x[i] - x[HALF - 1 - i];
  }
  const zulgResult result = zulgDCT4_32f(coefficients, coefficients, mdct->plan);
  for (int k = 0; k < HALF; ++k) coefficients[k] *= kScale;
  return result;
}

/* Adds a frame, aliases and all, to what its neighbour left. */
static zulgResult synthesise(const Mdct* mdct, const zulg32f* coefficients, zulg32f* frame) {
  zulg32f x[HALF];
  const int q = HALF / 2;
  const zulgResult result = zulgDCT4_32f(coefficients, x, mdct->plan);
  for (int i = 0; i < q; ++i) {
    const float first = kScale * x[i], second = kScale * x[q + i];
    frame[i] += mdct->window[i] * second;
    frame[HALF - 1 - i] -= mdct->window[HALF - 1 - i] * second;
    frame[3 * q - 1 - i] -= mdct->window[3 * q - 1 - i] * first;
    frame[3 * q + i] -= mdct->window[3 * q + i] * first;
  }
  return result;
}

/* Quantises in units of `step` and returns the bits that an ideal coder of single values needs: the
 * entropy of the numbers. A negative result means that there was no memory or a number is too
 * large. */
static double quantise(const zulg32f* values, size_t count, double step, zulg32f* quantised) {
  size_t* histogram = calloc(LEVELS, sizeof *histogram);
  double bits = histogram != NULL ? 0 : -1;
  for (size_t i = 0; bits >= 0 && i < count; ++i) {
    const double level = rint(values[i] / step);
    if (!(fabs(level) < LEVELS / 2)) {
      bits = -1;
    } else {
      ++histogram[LEVELS / 2 + (int)level];
      quantised[i] = level * step;
    }
  }
  for (int i = 0; bits >= 0 && i < LEVELS; ++i) {
    if (histogram[i] > 0) bits -= histogram[i] * log2((double)histogram[i] / count);
  }
  free(histogram);
  return bits;
}

static double norm_of_difference(const zulg32f* a, const zulg32f* b, size_t count) {
  double sum = 0;
  for (size_t i = 0; i < count; ++i) sum += ((double)a[i] - b[i]) * ((double)a[i] - b[i]);
  return sqrt(sum);
}

static zulgResult synthesise_all(const Mdct* mdct, const zulg32f* coefficients, size_t frames,
                                 zulg32f* signal) {
  zulgResult result = ZULG_OK;
  for (size_t i = 0; i < (frames + 1) * HALF; ++i) signal[i] = 0;
  for (size_t f = 0; f < frames && result == ZULG_OK; ++f)
    result = synthesise(mdct, coefficients + f * HALF, signal + f * HALF);
  return result;
}

/* Four arrays of (frames + 1) * HALF values; `signal` begins and ends with HALF zeros. */
static int code(const Mdct* mdct, size_t frames, const zulg32f* signal, zulg32f* spectrum,
                zulg32f* coded, zulg32f* back) {
  const size_t samples = (frames + 1) * HALF, coefficients = frames * HALF;
  for (size_t f = 0; f < frames; ++f) {
    if (analyse(mdct, signal + f * HALF, spectrum + f * HALF) != ZULG_OK) return 0;
  }
  if (synthesise_all(mdct, spectrum, frames, back) != ZULG_OK) return 0;

  /* The whole transform is orthogonal, so errors of its steps just add in the norm. A DCT-IV of 256
   * has 8 levels of a table's value, a product and a sum: 24 u. Window, fold and scale add 5 u, and
   * so do scale, window and overlap on the way back. */
  const double allowed = 2 * (24 + 5) * kUnit;
  double norm = 0, worst = 0;
  for (size_t i = 0; i < samples; ++i) {
    norm += (double)signal[i] * signal[i];
    worst = fmax(worst, fabs((double)signal[i] - back[i]));
  }
  norm = sqrt(norm);
  const double error = norm_of_difference(signal, back, samples);
  printf("reconstruction: relative error %.2e, allowed %.2e; largest difference %.2e\n\n",
         error / norm, allowed, worst);
  int is_right = error <= allowed * norm;

  printf("   step       SNR   bits a sample: MDCT   samples\n");
  for (int exponent = 6; exponent <= 12; exponent += 2) {
    const double step = ldexp(1, -exponent);
    const double plain_bits = quantise(signal + HALF, samples - FRAME, step, back);
    const double bits = quantise(spectrum, coefficients, step, coded);
    if (bits < 0 || plain_bits < 0) return 0;
    if (synthesise_all(mdct, coded, frames, back) != ZULG_OK) return 0;
    const double noise = norm_of_difference(signal, back, samples);
    printf("2^-%-2d   %7.2f dB   %17.2f   %7.2f\n", exponent, 20 * log10(norm / noise),
           bits / (samples - FRAME), plain_bits / (samples - FRAME));
    /* The coefficients' noise is the samples', up to rounding. */
    if (!(fabs(noise - norm_of_difference(spectrum, coded, coefficients)) <= allowed * norm))
      is_right = 0;
  }
  return is_right;
}

int main(int argc, char** argv) {
  Recording recording;
  if (!wav_read(argc > 1 ? argv[1] : DEFAULT_RECORDING, &recording)) {
    fprintf(stderr, "mdct: %s\n", recording.problem);
    return 1;
  }
  Mdct mdct = {.plan = NULL};
  const size_t frames = (recording.count + HALF - 1) / HALF + 1, size = (frames + 1) * HALF;
  zulg32f* arrays = calloc(4 * size, sizeof *arrays);
  int is_right = arrays != NULL && zulgDCT4InitAlloc_32f(&mdct.plan, HALF) == ZULG_OK;
  if (is_right) {
    for (int i = 0; i < FRAME; ++i) mdct.window[i] = sin(kPi * (i + 0.5) / FRAME);
    for (size_t i = 0; i < recording.count; ++i) arrays[HALF + i] = recording.samples[i];
    is_right = code(&mdct, frames, arrays, arrays + size, arrays + 2 * size, arrays + 3 * size);
  }
  if (mdct.plan != NULL) zulgDCT4Free_32f(mdct.plan);
  free(arrays);
  free(recording.samples);
  if (!is_right) fprintf(stderr, "mdct: a check failed, or there was no memory\n");
  return is_right ? 0 : 1;
}
