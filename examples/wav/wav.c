#include "wav.h"

#include <errno.h>
#include <math.h>
#include <stdarg.h>
#include <stdint.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

/* Writers that can't seek back leave 0 or a size near 2 or 4 GiB in the header. */
static const uint32_t kStreamedSize = 0x7fff0000;

/* Far from overflow in a transform, and beyond what any unit of amplitude needs. */
static const double kLargestSample = 1e30;

/* How much of the power may be lost in the mix, beyond what independent channels lose. */
static const double kCancelled = 4;

static bool fail(Recording* recording, const char* format, ...) {
  va_list arguments;
  va_start(arguments, format);
  vsnprintf(recording->problem, sizeof recording->problem, format, arguments);
  va_end(arguments);
  return false;
}

static void remark(Recording* recording, const char* text) {
  const size_t length = strlen(recording->remark);
  snprintf(recording->remark + length, sizeof recording->remark - length, "%s%s",
           length > 0 ? "; " : "", text);
}

static unsigned read_u16(const uint8_t* p) { return p[0] | p[1] << 8; }
static uint32_t read_u32(const uint8_t* p) { return read_u16(p) | (uint32_t)read_u16(p + 2) << 16; }

/* Reads on instead of seeking: pipes will do, and no size in a header can lead out of the file. */
static void skip(FILE* file, uint64_t size) {
  uint8_t block[4096];
  while (size > 0) {
    const size_t part = size < sizeof block ? size : sizeof block;
    if (fread(block, 1, part, file) < part) return;
    size -= part;
  }
}

static bool parse_format(const uint8_t* chunk, size_t size, Recording* recording) {
  static const uint8_t kGuidTail[14] = {0, 0, 0, 0, 0x10, 0, 0x80, 0, 0, 0xaa, 0, 0x38, 0x9b, 0x71};
  enum { PCM = 1, FLOAT = 3, EXTENSIBLE = 0xfffe };
  unsigned encoding = read_u16(chunk);
  if (encoding == EXTENSIBLE && size >= 40 && memcmp(chunk + 26, kGuidTail, 14) == 0)
    encoding = read_u16(chunk + 24);
  const unsigned channels = read_u16(chunk + 2);
  const unsigned bits = read_u16(chunk + 14);
  recording->channels = channels;
  recording->rate = read_u32(chunk + 4);
  recording->bits = bits;
  recording->is_float = encoding == FLOAT;
  if (encoding != PCM && encoding != FLOAT)
    return fail(recording, "encoding %u is neither PCM nor float", encoding);
  if (encoding == FLOAT ? bits != 32 && bits != 64 : bits < 1 || bits > 32)
    return fail(recording, "%s samples of %u bits are not supported",
                encoding == FLOAT ? "float" : "PCM", bits);
  if (channels == 0) return fail(recording, "the header says that there are no channels");
  if (recording->rate == 0) return fail(recording, "the header says that the sample rate is 0");
  if (read_u16(chunk + 12) != channels * ((bits + 7) / 8))
    return fail(recording, "the header's block size doesn't fit %u channels of %u bits", channels,
                bits);
  return true;
}

/* Full scale is 1. PCM of 9 bits and more is signed and fills its bytes from the top, so it is read
 * as the upper part of 32 bits. The file's byte order is the machine's. */
static double sample_value(const uint8_t* bytes, size_t size, bool is_float) {
  if (is_float && size == sizeof(float)) {
    float value;
    memcpy(&value, bytes, sizeof value);
    return value;
  }
  if (is_float) {
    double value;
    memcpy(&value, bytes, sizeof value);
    return value;
  }
  if (size == 1) return (bytes[0] - 128) / 128.0;
  uint32_t value = 0;
  memcpy((uint8_t*)&value + sizeof value - size, bytes, size);
  return (int32_t)value / 2147483648.0;
}

/* Reads `size` bytes or what is there of them. */
static bool read_samples(FILE* file, uint32_t size, Recording* recording) {
  uint8_t block[UINT16_MAX]; /* one sample of every channel */
  const size_t sample_size = (recording->bits + 7) / 8;
  const size_t block_size = sample_size * recording->channels;
  size_t capacity = 0;
  double mixed_power = 0, power = 0;
  for (; size >= block_size; size -= block_size) {
    if (fread(block, 1, block_size, file) < block_size) break;
    double sum = 0;
    for (size_t at = 0; at < block_size; at += sample_size) {
      const double value = sample_value(block + at, sample_size, recording->is_float);
      if (!(fabs(value) <= kLargestSample))
        return fail(recording, "sample %zu is infinite, huge or not a number", recording->count);
      sum += value;
      power += value * value / recording->channels;
    }
    mixed_power += sum * sum / recording->channels / recording->channels;
    if (recording->count == capacity) {
      capacity = capacity == 0 ? 1 << 16 : 2 * capacity;
      float* larger = capacity <= SIZE_MAX / 2 / sizeof(float)
                          ? realloc(recording->samples, capacity * sizeof(float))
                          : NULL;
      if (larger == NULL) return fail(recording, "it is too long for the memory");
      recording->samples = larger;
    }
    recording->samples[recording->count++] = sum / recording->channels;
  }
  if (ferror(file)) return fail(recording, "%s", strerror(errno));
  if (recording->count == 0) return fail(recording, "it holds no samples");
  if (size >= block_size && size < kStreamedSize)
    remark(recording, "it ends early: what is there is used");
  /* Independent channels, too, lose as much as there are channels. */
  if (mixed_power * recording->channels * kCancelled < power)
    remark(recording, mixed_power == 0
                          ? "its channels cancel one another: nothing is left in their mean"
                          : "its channels cancel one another: little of them is in their mean");
  return true;
}

static bool read_chunks(FILE* file, Recording* recording) {
  uint8_t head[12];
  const size_t head_size = fread(head, 1, sizeof head, file);
  if (ferror(file)) return fail(recording, "%s", strerror(errno));
  if (head_size == 0) return fail(recording, "the file is empty");
  if (head_size < sizeof head || memcmp(head, "RIFF", 4) != 0 || memcmp(head + 8, "WAVE", 4) != 0)
    return fail(recording, "not a WAV file");
  const uint64_t file_size = 8 + (uint64_t)read_u32(head + 4);

  bool has_format = false;
  uint64_t position = sizeof head;
  while (fread(head, 1, 8, file) == 8) {
    const uint32_t size = read_u32(head + 4);
    const uint64_t padded_size = (uint64_t)size + (size & 1);
    position += 8;
    if (memcmp(head, "data", 4) == 0) {
      if (!has_format) return fail(recording, "the samples come before their format");
      const bool is_streamed = size == 0 && (file_size <= position || file_size > kStreamedSize);
      return read_samples(file, is_streamed ? UINT32_MAX : size, recording);
    }
    if (memcmp(head, "fmt ", 4) == 0) {
      uint8_t chunk[40];
      const size_t part = size < sizeof chunk ? size : sizeof chunk;
      if (part < 16 || fread(chunk, 1, part, file) < part)
        return fail(recording, "the header is cut short");
      if (!parse_format(chunk, part, recording)) return false;
      has_format = true;
      skip(file, padded_size - part);
    } else {
      skip(file, padded_size);
    }
    position += padded_size;
  }
  return fail(recording, "the file ends before any samples");
}

bool wav_read(const char* path, Recording* recording) {
  memset(recording, 0, sizeof *recording);
  FILE* file = fopen(path, "rb");
  if (file == NULL) return fail(recording, "%s", strerror(errno));
  const bool is_read = read_chunks(file, recording);
  fclose(file);
  if (!is_read) {
    free(recording->samples);
    recording->samples = NULL;
  }
  return is_read;
}
