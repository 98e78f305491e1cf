#include "tones.h"

#include <math.h>
#include <stdbool.h>
#include <stdio.h>
#include <stdlib.h>

static const double kPi = 3.14159265358979323846;
static const double kLeastDistance = 20;    /* Hz */
static const double kLeastLevel = -60;      /* dB */
static const double kLeastDistinction = 15; /* dB */

static bool is_peak(const double* power, int bin, int reach) {
  for (int k = bin - reach; k <= bin + reach; ++k) {
    if (k < 0 || k == bin || k >= FRAME_BINS) continue;
    /* Of equals, the first counts. */
    if (power[k] > power[bin] || (power[k] == power[bin] && k < bin)) return false;
  }
  return power[bin] > 0;
}

static int compare(const void* a, const void* b) {
  const double x = *(const double*)a, y = *(const double*)b;
  return (x > y) - (x < y);
}

/* Whether the peak stands out of the bins around it. Noise has an exponential distribution in a bin
 * of a single frame: one of 10^9 is above its median by that much, and means of frames stray less.
 */
static bool stands_out(const double* power, int bin) {
  enum { REACH = 48 };
  double around[2 * REACH + 1];
  int count = 0;
  for (int k = bin - REACH; k <= bin + REACH; ++k) {
    if (k >= 0 && k < FRAME_BINS) around[count++] = power[k];
  }
  qsort(around, count, sizeof *around, compare);
  return 10 * log10(power[bin] / around[count / 2]) > kLeastDistinction;
}

/* The tone whose spectrum under a Hann window, W(d) = sin(pi d) / (pi d (1 - d^2)) at d bins from
 * it, has the ratio of the peak's bin to its larger neighbour: W(1 - d) / W(d) = (1 + d) / (2 - d).
 */
static Tone interpolate_peak(const double* power, int bin, double bin_width) {
  const int side = power[bin + 1] > power[bin - 1] ? 1 : -1;
  const double ratio = sqrt(power[bin + side] / power[bin]);
  const double d = fmax(0, (2 * ratio - 1) / (ratio + 1));
  const double lobe = d == 0 ? 1 : sin(kPi * d) / (kPi * d * (1 - d * d));
  const double amplitude = 4 * sqrt(power[bin]) / (FRAME_LENGTH * lobe);
  return (Tone){(bin + side * d) * bin_width, 20 * log10(amplitude)};
}

int find_tones(const Spectrogram* spectrogram, Tone* tones, int limit) {
  const double* power = spectrogram->mean_power;
  const double bin_width = spectrogram->rate / FRAME_LENGTH;
  /* A tone's main lobe reaches two bins to either side. */
  const int reach = fmax(2, fmin(kLeastDistance / bin_width, FRAME_BINS));
  int count = 0;
  for (int bin = 1; bin < FRAME_BINS - 1; ++bin) {
    if (!is_peak(power, bin, reach) || !stands_out(power, bin)) continue;
    const Tone tone = interpolate_peak(power, bin, bin_width);
    if (count == limit && tone.level <= tones[limit - 1].level) continue;
    int at = count < limit ? count++ : limit - 1;
    for (; at > 0 && tones[at - 1].level < tone.level; --at) tones[at] = tones[at - 1];
    tones[at] = tone;
  }
  while (count > 0 && tones[count - 1].level < tones[0].level + kLeastLevel) --count;
  return count;
}

Note nearest_note(double frequency) {
  static const char* const kNames[12] = {"C",  "C#", "D",  "D#", "E",  "F",
                                         "F#", "G",  "G#", "A",  "A#", "B"};
  enum { A4 = 4 * 12 + 9 }; /* semitones above C0 */
  const double semitones = A4 + 12 * log2(frequency / 440);
  const int nearest = lrint(semitones);
  const int octave = floor(nearest / 12.0);
  Note note = {.cents = 100 * (semitones - nearest)};
  snprintf(note.name, sizeof note.name, "%s%d", kNames[nearest - 12 * octave], octave);
  return note;
}
