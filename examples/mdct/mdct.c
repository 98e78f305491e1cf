/* mdct: how to code a recording by the windowed MDCT, whose core is a DCT-IV.
 *
 *   mdct [recording.wav]
 *
 * Frames of 512 samples, 256 apart, give 256 coefficients each. Folding a frame makes time-domain
 * aliases; those of two neighbours cancel when they overlap again, and the recording is back. The
 * coefficients are then quantised, and their bits are compared with those of samples quantised as
 * finely. */
#include <float.h>
#include <math.h>

#include "program.h"
#include "wav.h"
#include "zulgen.h"

enum { HALF = 256, FRAME = 2 * HALF, LEVELS = 1 << 18 };

static const Program kProgram = {"mdct", "[recording.wav]", 1,
                                 "Codes a recording by the windowed MDCT."};

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
 * entropy of the numbers. */
static double quantise(const zulg32f* values, size_t count, double step, size_t* histogram,
                       zulg32f* quantised) {
  double bits = 0;
  memset(histogram, 0, LEVELS * sizeof *histogram);
  for (size_t i = 0; i < count; ++i) {
    const double level = rint(values[i] / step);
    ++histogram[LEVELS / 2 + (int)level];
    quantised[i] = level * step;
  }
  for (int i = 0; i < LEVELS; ++i) {
    if (histogram[i] > 0) bits -= histogram[i] * log2((double)histogram[i] / count);
  }
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

/* The power of two that no sample exceeds, and at least 1: what steps are relative to. A frame's
 * coefficients can't exceed sqrt(FRAME) times that, so that there are levels for all of them. */
static double full_scale_of(const zulg32f* signal, size_t samples) {
  double full_scale = 1;
  for (size_t i = 0; i < samples; ++i) {
    while (full_scale < fabs(signal[i])) full_scale *= 2;
  }
  return full_scale;
}

typedef struct Arrays { /* of (frames + 1) * HALF values each */
  zulg32f* signal;      /* begins and ends with HALF zeros */
  zulg32f *spectrum, *coded, *back;
  size_t* histogram; /* of LEVELS numbers */
} Arrays;

/* Returns null, or what is wrong. */
static const char* code(const Mdct* mdct, size_t frames, const Arrays* arrays) {
  static const char* const kRefused = "a transform refused its arguments";
  const zulg32f* signal = arrays->signal;
  zulg32f* back = arrays->back;
  const size_t samples = (frames + 1) * HALF, coefficients = frames * HALF;
  for (size_t f = 0; f < frames; ++f) {
    if (analyse(mdct, signal + f * HALF, arrays->spectrum + f * HALF) != ZULG_OK) return kRefused;
  }
  if (synthesise_all(mdct, arrays->spectrum, frames, back) != ZULG_OK) return kRefused;

  double norm = 0, worst = 0;
  for (size_t i = 0; i < samples; ++i) {
    norm += (double)signal[i] * signal[i];
    worst = fmax(worst, fabs((double)signal[i] - back[i]));
  }
  norm = sqrt(norm);
  if (norm == 0) {
    printf("the recording is silent, and so is what comes back: there is nothing to code\n");
    return worst == 0 ? NULL : "silence comes back with sounds in it";
  }
  /* The whole transform is orthogonal, so errors of its steps just add in the norm. A DCT-IV of 256
   * has 8 levels of a table's value, a product and a sum: 24 u. Window, fold and scale add 5 u, and
   * so do scale, window and overlap on the way back. Underflow can't add FLT_MIN. */
  const double relative = 2 * (24 + 5) * kUnit, allowed = relative * norm + FLT_MIN;
  const double error = norm_of_difference(signal, back, samples);
  printf("reconstruction: relative error %.2e, allowed %.2e; largest difference %.2e\n",
         error / norm, relative, worst);
  int is_right = error <= allowed;

  const double full_scale = full_scale_of(signal, samples);
  printf("full scale: %g\n\n   step       SNR   bits a sample: MDCT   samples\n", full_scale);
  for (int exponent = 6; exponent <= 12; exponent += 2) {
    const double step = ldexp(full_scale, -exponent);
    const double plain_bits =
        quantise(signal + HALF, samples - FRAME, step, arrays->histogram, back);
    const double bits =
        quantise(arrays->spectrum, coefficients, step, arrays->histogram, arrays->coded);
    if (synthesise_all(mdct, arrays->coded, frames, back) != ZULG_OK) return kRefused;
    const double noise = norm_of_difference(signal, back, samples);
    printf("2^-%-2d   %7.2f dB   %17.2f   %7.2f\n", exponent, 20 * log10(norm / noise),
           bits / (samples - FRAME), plain_bits / (samples - FRAME));
    /* The coefficients' noise is the samples', up to rounding. */
    const double coded_noise = norm_of_difference(arrays->spectrum, arrays->coded, coefficients);
    if (!(fabs(noise - coded_noise) <= allowed)) is_right = 0;
  }
  return is_right ? NULL : "the transform is not as exact as it must be";
}

/* Returns null, or what is wrong. */
static const char* run(const Recording* recording, Arrays* arrays, size_t frames, size_t size) {
  Mdct mdct = {.plan = NULL};
  if (arrays->signal == NULL || arrays->histogram == NULL ||
      zulgDCT4InitAlloc_32f(&mdct.plan, HALF) != ZULG_OK)
    return "there is no memory for it";
  arrays->spectrum = arrays->signal + size;
  arrays->coded = arrays->spectrum + size;
  arrays->back = arrays->coded + size;
  for (int i = 0; i < FRAME; ++i) mdct.window[i] = sin(kPi * (i + 0.5) / FRAME);
  for (size_t i = 0; i < recording->count; ++i) arrays->signal[HALF + i] = recording->samples[i];
  const char* problem = code(&mdct, frames, arrays);
  zulgDCT4Free_32f(mdct.plan);
  return problem;
}

int main(int argc, char** argv) {
  const char* path = program_operands(&kProgram, argc, argv)[0];
  if (path == NULL) path = DEFAULT_RECORDING;
  Recording recording;
  if (!wav_read(path, &recording)) return complain(&kProgram, path, "%s", recording.problem);
  if (recording.remark[0] != '\0') complain(&kProgram, path, "%s", recording.remark);
  const size_t frames = (recording.count + HALF - 1) / HALF + 1, size = (frames + 1) * HALF;
  Arrays arrays = {.signal = calloc(4 * size, sizeof *arrays.signal),
                   .histogram = malloc(LEVELS * sizeof *arrays.histogram)};
  const char* problem = run(&recording, &arrays, frames, size);
  free(arrays.signal);
  free(arrays.histogram);
  free(recording.samples);
  return program_end(&kProgram,
                     problem == NULL ? EXIT_SUCCESS : complain(&kProgram, path, "%s", problem));
}
