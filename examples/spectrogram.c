#include "spectrogram.h"

#include <float.h>
#include <math.h>
#include <stdint.h>
#include <stdlib.h>
#include <string.h>

static const double kPi = 3.14159265358979323846;
static const double kRoundoff = 0x1p-24; /* u: the relative error of one rounding to float */

/* What rounding explains, with |.| the root of the sum of squares over a transform's samples:
 *
 *   a kernel of 64 or 32 points    2.5 u   random samples, tones and impulses get up to 2.1 u
 *   a product by a twiddle factor  3 u     sqrt(5) u the product, u / sqrt(2) the factor itself
 *
 * All of them keep |.| but for a factor, so that relative errors add up: 2.5 + 3 + 2.5 = 8 u from
 * |x| to |X| = sqrt(N) |x|, and twice that for x back from X. Scaling by 1/2048 is exact, and what
 * is computed from X here is in double. */
const SpectrogramErrors kAllowedErrors = {.parseval = 8, .round_trip = 16};

/* One transform's worth: frame `a` is the real part and frame `b` the imaginary part of x. */
typedef struct FramePair {
  zulg32fc x[FRAME_LENGTH] __attribute__((aligned(16)));
  zulg32fc spectrum[FRAME_LENGTH] __attribute__((aligned(16)));
  zulg32fc back[FRAME_LENGTH] __attribute__((aligned(16)));
  double power_a[FRAME_BINS];
  double power_b[FRAME_BINS];
} FramePair;

static float sample_at(const float* samples, size_t count, int64_t at) {
  return at >= 0 && (uint64_t)at < count ? samples[at] : 0;
}

static void load_frames(const float* samples, size_t count, const float* window, size_t frame,
                        FramePair* pair) {
  for (int n = 0; n < FRAME_LENGTH; ++n) {
    const int64_t at = (int64_t)frame * FRAME_HOP - FRAME_LENGTH / 2 + n;
    pair->x[n].re = window[n] * sample_at(samples, count, at);
    pair->x[n].im = window[n] * sample_at(samples, count, at + FRAME_HOP);
  }
}

/* A and B are the parts of X = A + i B that have the symmetry of a real signal's spectrum:
 * 2 A[k] = X[k] + conj X[N - k] and 2 i B[k] = X[k] - conj X[N - k]. */
static void separate_frames(FramePair* pair) {
  for (int k = 0; k < FRAME_BINS; ++k) {
    const zulg32fc x = pair->spectrum[k];
    const zulg32fc mirrored = pair->spectrum[(FRAME_LENGTH - k) % FRAME_LENGTH];
    const double a_re = 0.5 * ((double)x.re + mirrored.re);
    const double a_im = 0.5 * ((double)x.im - mirrored.im);
    const double b_re = 0.5 * ((double)x.im + mirrored.im);
    const double b_im = 0.5 * ((double)mirrored.re - x.re);
    pair->power_a[k] = a_re * a_re + a_im * a_im;
    pair->power_b[k] = b_re * b_re + b_im * b_im;
  }
}

/* |A| / sqrt(N) of a real signal from the half of its spectrum that is not a mirror image. */
static double norm_by_spectrum(const double* power) {
  double sum = power[0] + power[FRAME_BINS - 1];
  for (int k = 1; k < FRAME_BINS - 1; ++k) sum += 2 * power[k];
  return sqrt(sum / FRAME_LENGTH);
}

/* In units of u, relative to the norm of both frames, as the rounding errors of the louder one are
 * in both. FLT_MIN is more than underflow can add, and gives silence an error of 0. A NaN comes out
 * as infinity: fmax() would drop it. */
static double relative(double error, double norm) {
  return isnan(error) ? INFINITY : fabs(error) / (kRoundoff * norm + FLT_MIN);
}

static void measure_errors(const FramePair* pair, SpectrogramErrors* worst) {
  double a = 0, b = 0, difference = 0;
  for (int n = 0; n < FRAME_LENGTH; ++n) {
    const zulg32fc x = pair->x[n];
    const double re = (double)pair->back[n].re - x.re;
    const double im = (double)pair->back[n].im - x.im;
    a += (double)x.re * x.re;
    b += (double)x.im * x.im;
    difference += re * re + im * im;
  }
  const double norm = sqrt(a + b);
  const double parseval_a = relative(norm_by_spectrum(pair->power_a) - sqrt(a), norm);
  const double parseval_b = relative(norm_by_spectrum(pair->power_b) - sqrt(b), norm);
  worst->parseval = fmax(worst->parseval, fmax(parseval_a, parseval_b));
  worst->round_trip = fmax(worst->round_trip, relative(sqrt(difference), norm));
}

static void store_frame(const double* power, size_t frame, Spectrogram* spectrogram) {
  float* levels = spectrogram->levels + frame * FRAME_BINS;
  for (int k = 0; k < FRAME_BINS; ++k) {
    levels[k] = 10 * log10(power[k]);
    spectrogram->mean_power[k] += power[k] / spectrogram->frame_count;
  }
}

/* Silence comes as -INFINITY; all of it silent, as the NaN that fmaxf() drops. */
static void make_relative(Spectrogram* spectrogram) {
  const size_t size = spectrogram->frame_count * FRAME_BINS;
  float strongest = -INFINITY;
  for (size_t i = 0; i < size; ++i) strongest = fmaxf(strongest, spectrogram->levels[i]);
  for (size_t i = 0; i < size; ++i)
    spectrogram->levels[i] = fmaxf(spectrogram->levels[i] - strongest, LEVEL_FLOOR);
}

const char* spectrogram_compute(const float* samples, size_t count, double rate,
                                Spectrogram* spectrogram) {
  memset(spectrogram, 0, sizeof *spectrogram);
  spectrogram->sample_count = count;
  spectrogram->rate = rate;
  spectrogram->frame_count = count / FRAME_HOP + 1;
  spectrogram->levels = calloc(spectrogram->frame_count, FRAME_BINS * sizeof(float));
  if (spectrogram->levels == NULL) return "not enough memory for its spectrogram";

  LongDft dft;
  FramePair pair;
  float window[FRAME_LENGTH];
  long_dft_init(&dft);
  for (int n = 0; n < FRAME_LENGTH; ++n) window[n] = 0.5 - 0.5 * cos(2 * kPi * n / FRAME_LENGTH);
  for (size_t frame = 0; frame < spectrogram->frame_count; frame += 2) {
    load_frames(samples, count, window, frame, &pair);
    if (long_dft_forward(&dft, pair.x, pair.spectrum, ZULG_SCALE_INV_BY_N) != ZULG_OK ||
        long_dft_inverse(&dft, pair.spectrum, pair.back, ZULG_SCALE_INV_BY_N) != ZULG_OK)
      return "a transform refused its arguments";
    separate_frames(&pair);
    measure_errors(&pair, &spectrogram->worst);
    store_frame(pair.power_a, frame, spectrogram);
    if (frame + 1 < spectrogram->frame_count) store_frame(pair.power_b, frame + 1, spectrogram);
  }
  make_relative(spectrogram);
  return NULL;
}
