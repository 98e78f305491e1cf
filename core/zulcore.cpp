#include "zulcore.h"

#include <stdlib.h>

// A cache line, which serves every vector type as well.
static constexpr size_t kAlignment = 64;

extern "C" __attribute__((visibility("default"))) void* zulMalloc(size_t size) {
  void* block = nullptr;
  return posix_memalign(&block, kAlignment, size) == 0 ? block : nullptr;
}

extern "C" __attribute__((visibility("default"))) void zulFree(void* block) { free(block); }
