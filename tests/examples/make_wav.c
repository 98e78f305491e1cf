/* Writes one second of A4 (a sine of 440 Hz) as a WAV file of 8000 samples per second.
 * Usage: make_wav ENCODING BITS CHANNELS [extensible] > file
 *
 * All channels but the first are silent. A chunk of odd length stands before the header. */
#include <math.h>
#include <stdint.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

enum { RATE = 8000 };

static void put(uint64_t value, int size) {
  for (int i = 0; i < size; ++i) putchar(value >> 8 * i & 0xff);
}

static void put_sample(double value, int encoding, int bits) {
  uint64_t image = 0;
  if (encoding == 3 && bits == 32) {
    const float single = value;
    memcpy(&image, &single, sizeof single);
  } else if (encoding == 3) {
    memcpy(&image, &value, sizeof value);
  } else {
    image = llrint(ldexp(value, bits - 1)) + (bits == 8 ? 128 : 0);
  }
  put(image, bits / 8);
}

int main(int argc, char** argv) {
  if (argc < 4) return 2;
  const int encoding = atoi(argv[1]), bits = atoi(argv[2]), channels = atoi(argv[3]);
  const int is_extensible = argc > 4;
  const int block = channels * bits / 8;
  const int format_size = is_extensible ? 40 : 16;

  fputs("RIFF", stdout);
  put(4 + 12 + 8 + format_size + 8 + RATE * block, 4);
  fputs("WAVEodd ", stdout);
  put(3, 4);
  put(0x616161, 4);
  fputs("fmt ", stdout);
  put(format_size, 4);
  put(is_extensible ? 0xfffe : encoding, 2);
  put(channels, 2);
  put(RATE, 4);
  put(RATE * block, 4);
  put(block, 2);
  put(bits, 2);
  if (is_extensible) {
    put(22, 2);
    put(bits, 2);
    put(0, 4);
    put(encoding, 4);
    put(0xaa00008000100000, 8);
    put(0x719b3800, 4);
  }
  fputs("data", stdout);
  put(RATE * block, 4);
  for (int n = 0; n < RATE; ++n) {
    put_sample(0.5 * sin(2 * 3.14159265358979323846 * 440 * n / RATE), encoding, bits);
    for (int c = 1; c < channels; ++c) put_sample(0, encoding, bits);
  }
  return 0;
}
