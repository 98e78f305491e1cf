// What the kernels run on while they are timed.
#pragma once

#include <cstring>
#include <random>

#include "bench/clock.h"
#include "gen/graph.h"
#include "zulgen.h"

namespace bench {

// Arrays large enough for any kernel, on a cache line of their own.
struct Arrays {
  alignas(64) char source[65536];
  alignas(64) char destination[65536];
  alignas(64) char work[73728];

  void clear() { std::memset(source, 0, sizeof source); }

  void fill(gen::Precision precision) {
    std::mt19937 random(1);
    std::uniform_real_distribution<double> uniform(-1, 1);
    const std::size_t size = precision == gen::Precision::kSingle ? sizeof(float) : sizeof(double);
    for (std::size_t at = 0; at < sizeof source; at += size) {
      const double value = uniform(random);
      const float single = static_cast<float>(value);
      std::memcpy(source + at, size == sizeof single ? static_cast<const void*>(&single) : &value,
                  size);
    }
  }
};

// Kernels without a work buffer don't look at the last argument.
using KernelFunction = zulgResult (*)(const void*, void*, zulgScaleFlag, void*);

// Calls of a kernel that dlsym() found.
inline Contender calls_of(void* function, Arrays& arrays) {
  return [kernel = reinterpret_cast<KernelFunction>(function), &arrays](int calls) {
    for (int call = 0; call < calls; ++call) {
      kernel(arrays.source, arrays.destination, ZULG_SCALE_NONE, arrays.work);
    }
  };
}

}  // namespace bench
