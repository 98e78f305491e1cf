#include "tones.h"

#include <math.h>
#include <stdbool.h>
#include <stdio.h>

static const double kLeastDistance = 20; /* Hz */
static const double kLeastLevel = -60;   /* dB */

static bool is_peak(const double* power, int bin, int reach) {
  for (int k = bin - reach; k <= bin + reach; ++k) {
    if (k < 0 || k == bin || k >= FRAME_BINS) continue;
    /* Of equals, the first counts. */
    if (power[k] > power[bin] || (power[k] == power[bin] && k < bin)) return false;
  }
  return power[bin] > 0;
}

/* The vertex of the parabola through the levels of the peak's bin and its two neighbours: the log
 * of a Hann window's main lobe is close to one. */
static Tone interpolate_peak(const double* power, int bin, double bin_width) {
  const double left = log10(power[bin - 1]);
  const double top = log10(power[bin]);
  const double right = log10(power[bin + 1]);
  const double curvature = left - 2 * top + right;
  if (!isfinite(curvature) || curvature == 0) return (Tone){bin * bin_width, 10 * top};
  const double offset = 0.5 * (left - right) / curvature;
  return (Tone){(bin + offset) * bin_width, 10 * (top - 0.25 * (left - right) * offset)};
}

int find_tones(const Spectrogram* spectrogram, Tone* tones, int limit) {
  const double* power = spectrogram->mean_power;
  const double bin_width = spectrogram->rate / FRAME_LENGTH;
  /* A tone's main lobe reaches two bins to either side. */
  const int reach = fmax(2, fmin(kLeastDistance / bin_width, FRAME_BINS));
  int count = 0;
  for (int bin = 1; bin < FRAME_BINS - 1; ++bin) {
    if (!is_peak(power, bin, reach)) continue;
    const Tone tone = interpolate_peak(power, bin, bin_width);
    if (count == limit && tone.level <= tones[limit - 1].level) continue;
    int at = count < limit ? count++ : limit - 1;
    for (; at > 0 && tones[at - 1].level < tone.level; --at) tones[at] = tones[at - 1];
    tones[at] = tone;
  }
  const double strongest = count > 0 ? tones[0].level : 0;
  for (int i = 0; i < count; ++i) tones[i].level -= strongest;
  while (count > 0 && tones[count - 1].level < kLeastLevel) --count;
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
