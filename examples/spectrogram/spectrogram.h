/* Spectrogram of a recording: Hann-windowed frames that overlap by three quarters. */
#ifndef EXAMPLES_SPECTROGRAM_H
#define EXAMPLES_SPECTROGRAM_H

#include <stddef.h>

#include "long_dft.h"

enum { FRAME_LENGTH = LONG_DFT_LENGTH, FRAME_HOP = 512, FRAME_BINS = FRAME_LENGTH / 2 + 1 };

/* Levels reach down to this many dB relative to the strongest. */
#define LEVEL_FLOOR (-100.0)

/* The transform's worst errors over all frames, in units of 2^-24 (see spectrogram.c). */
typedef struct SpectrogramErrors {
  double parseval;
  double round_trip;
} SpectrogramErrors;

extern const SpectrogramErrors kAllowedErrors;

typedef struct Spectrogram {
  size_t sample_count;
  double rate;        /* samples per second */
  size_t frame_count; /* frame f is centred on sample f * FRAME_HOP */
  /* dB relative to the strongest, LEVEL_FLOOR to 0: bin b of frame f at [f * FRAME_BINS + b] */
  float* levels;
  double mean_power[FRAME_BINS]; /* of frames that lie within the recording, if there are such */
  SpectrogramErrors worst;
} Spectrogram;

/* Returns null, or what went wrong. `levels` is the caller's to free() either way. */
const char* spectrogram_compute(const float* samples, size_t count, double rate,
                                Spectrogram* spectrogram);

#endif
