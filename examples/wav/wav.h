/* Reader of WAV recordings: PCM of up to 32 bits and float of 32 or 64 bits, any channels. */
#ifndef EXAMPLES_WAV_H
#define EXAMPLES_WAV_H

#include <stdbool.h>
#include <stddef.h>

typedef struct Recording {
  float* samples; /* the channels' mean, full scale is 1; null after a failure. For free(). */
  size_t count;   /* at least 1 */
  double rate;    /* samples per second, above 0 */
  int channels;
  int bits; /* of a sample in the file */
  bool is_float;
  char problem[100]; /* after a failure: what is wrong with the file */
  char remark[120];  /* else: what a user should know of the samples, or empty */
} Recording;

/* Returns whether the file could be read. */
bool wav_read(const char* path, Recording* recording);

#endif
