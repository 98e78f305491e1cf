#include "spectrogram.h"

#include <float.h>
#include <math.h>
#include <stdbool.h>
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

typedef struct Frame {
  zulg32f x[FRAME_LENGTH];
  zulg32fc spectrum[FRAME_BINS];
  zulg32f back[FRAME_LENGTH];
  double power[FRAME_BINS];
} Frame;

static float sample_at(const float* samples, size_t count, int64_t at) {
  return at >= 0 && (uint64_t)at < count ? samples[at] : 0;
}

static void load_frame(const float* samples, size_t count, const float* window, size_t number,
                       Frame* frame) {
  for (int n = 0; n < FRAME_LENGTH; ++n) {
    const int64_t at = (int64_t)number * FRAME_HOP - FRAME_LENGTH / 2 + n;
    frame->x[n] = window[n] * sample_at(samples, count, at);
  }
}

static void find_power(Frame* frame) {
  for (int k = 0; k < FRAME_BINS; ++k) {
    const double re = frame->spectrum[k].re, im = frame->spectrum[k].im;
    frame->power[k] = re * re + im * im;
  }
}

/* |X| / sqrt(N) from the half of the spectrum that is not a mirror image. */
static double norm_by_spectrum(const double* power) {
  double sum = power[0] + power[FRAME_BINS - 1];
  for (int k = 1; k < FRAME_BINS - 1; ++k) sum += 2 * power[k];
  return sqrt(sum / FRAME_LENGTH);
}

/* In units of u, relative to the frame's norm. FLT_MIN is more than underflow can add, and gives
 * silence an error of 0. A NaN comes out as infinity: fmax() would drop it. */
static double relative(double error, double norm) {
  return isnan(error) ? INFINITY : fabs(error) / (kRoundoff * norm + FLT_MIN);
}

static void measure_errors(const Frame* frame, SpectrogramErrors* worst) {
  double sum = 0, difference = 0;
  for (int n = 0; n < FRAME_LENGTH; ++n) {
    const double x = frame->x[n], error = frame->back[n] - x;
    sum += x * x;
    difference += error * error;
  }
  const double norm = sqrt(sum);
  worst->parseval = fmax(worst->parseval, relative(norm_by_spectrum(frame->power) - norm, norm));
  worst->round_trip = fmax(worst->round_trip, relative(sqrt(difference), norm));
}

/* The frames that lie within the recording; if none does, all. */
static void choose_frames(const Spectrogram* spectrogram, size_t* first, size_t* count) {
  const size_t half = FRAME_LENGTH / 2;
  const bool is_long = spectrogram->sample_count >= FRAME_LENGTH;
  *first = is_long ? half / FRAME_HOP : 0;
  *count = is_long ? (spectrogram->sample_count - half) / FRAME_HOP + 1 - *first
                   : spectrogram->frame_count;
}

static void store_frame(const double* power, size_t number, Spectrogram* spectrogram) {
  float* levels = spectrogram->levels + number * FRAME_BINS;
  size_t first, count;
  choose_frames(spectrogram, &first, &count);
  const double weight = number >= first && number - first < count ? 1.0 / count : 0;
  for (int k = 0; k < FRAME_BINS; ++k) {
    levels[k] = 10 * log10(power[k]);
    spectrogram->mean_power[k] += weight * power[k];
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
  Frame frame;
  float window[FRAME_LENGTH];
  long_dft_init(&dft);
  for (int n = 0; n < FRAME_LENGTH; ++n) window[n] = 0.5 - 0.5 * cos(2 * kPi * n / FRAME_LENGTH);
  for (size_t number = 0; number < spectrogram->frame_count; ++number) {
    load_frame(samples, count, window, number, &frame);
    if (long_dft_forward(&dft, frame.x, frame.spectrum, ZULG_SCALE_INV_BY_N) != ZULG_OK ||
        long_dft_inverse(&dft, frame.spectrum, frame.back, ZULG_SCALE_INV_BY_N) != ZULG_OK)
      return "a transform refused its arguments";
    find_power(&frame);
    measure_errors(&frame, &spectrogram->worst);
    store_frame(frame.power, number, spectrogram);
  }
  make_relative(spectrogram);
  return NULL;
}
