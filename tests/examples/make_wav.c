/* Writes one second of A4 (a sine of 440 Hz, of half the full scale) as a WAV file.
 * Usage: make_wav ENCODING BITS CHANNELS [KIND [RATE [AMPLITUDE]]] > file
 *
 * All channels but the first are silent. KIND is plain, extensible (the header), opposite (the
 * second channel is the first with its sign turned) or noise (instead of the sine). A chunk of odd
 * length stands before the header. */
#include <math.h>
#include <stdint.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

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
  const char* kind = argc > 4 ? argv[4] : "plain";
  const int is_extensible = strcmp(kind, "extensible") == 0;
  const int rate = argc > 5 ? atoi(argv[5]) : 8000;
  const double amplitude = argc > 6 ? atof(argv[6]) : 0.5;
  const int block = channels * bits / 8;
  const int format_size = is_extensible ? 40 : 16;

  fputs("RIFF", stdout);
  put(4 + 12 + 8 + format_size + 8 + rate * block, 4);
  fputs("WAVEodd ", stdout);
  put(3, 4);
  put(0x616161, 4);
  fputs("fmt ", stdout);
  put(format_size, 4);
  put(is_extensible ? 0xfffe : encoding, 2);
  put(channels, 2);
  put(rate, 4);
  put(rate * block, 4);
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
  put(rate * block, 4);
  uint32_t random = 1;
  for (int n = 0; n < rate; ++n) {
    double value = sin(2 * 3.14159265358979323846 * 440 * n / rate);
    random = random * 1664525 + 1013904223;
    if (strcmp(kind, "noise") == 0) value = random / 2147483648.0 - 1;
    put_sample(amplitude * value, encoding, bits);
    for (int c = 1; c < channels; ++c)
      put_sample(c == 1 && strcmp(kind, "opposite") == 0 ? -amplitude * value : 0, encoding, bits);
  }
  return 0;
}
