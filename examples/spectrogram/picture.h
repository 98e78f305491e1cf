/* The picture of a spectrogram: time to the right, logarithm of frequency upwards, level as colour,
 * with axes, a scale and the names of the strongest tones. */
#ifndef EXAMPLES_PICTURE_H
#define EXAMPLES_PICTURE_H

#include "tones.h"

/* `name` is the recording's. Returns null, or what went wrong. */
const char* picture_write(const Spectrogram* spectrogram, const Tone* tones, int tone_count,
                          const char* name, const char* path);

#endif
