/* The strongest tones of a recording. */
#ifndef EXAMPLES_TONES_H
#define EXAMPLES_TONES_H

#include "spectrogram.h"

typedef struct Tone {
  double frequency; /* Hz */
  double level;     /* dB relative to a sine of full scale */
} Tone;

/* A note of the equal-tempered scale with A4 at 440 Hz. */
typedef struct Note {
  char name[8];
  double cents; /* from the note to the tone, -50 to 50 */
} Note;

/* The peaks of the mean power spectrum, the strongest first: returns how many, at most `limit`.
 * None is within 20 Hz of a stronger one, 60 dB below the strongest, or so little above what is
 * around it that noise might have made it. */
int find_tones(const Spectrogram* spectrogram, Tone* tones, int limit);

Note nearest_note(double frequency);

#endif
