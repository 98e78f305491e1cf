// What every kernel does before its arithmetic: choosing a body, checking the arguments, finding
// the scale factor. Everything here is inlined into the kernel.
#pragma once

#include <stdint.h>

#include "zulgen.h"

#define ZULGEN_EXPORT extern "C" __attribute__((visibility("default")))
// The second body of a kernel: a function of its own that the exported one jumps to.
#define ZULGEN_TWIN extern "C" __attribute__((visibility("hidden"), noinline))

namespace zulgen {

inline bool is_misaligned(const void* source, const void* destination) {
  return ((reinterpret_cast<uintptr_t>(source) | reinterpret_cast<uintptr_t>(destination)) & 15) !=
         0;
}

// Source, then destination, then flag; ZULG_OK if all will do.
inline zulgResult check_arguments(const void* source, const void* destination, zulgScaleFlag flag) {
  if (__builtin_expect(source == nullptr || destination == nullptr, 0)) return ZULG_ERR_NULL_PTR;
  constexpr unsigned kFlags = 1u << ZULG_SCALE_FWD_BY_N | 1u << ZULG_SCALE_INV_BY_N |
                              1u << ZULG_SCALE_BY_SQRT_N | 1u << ZULG_SCALE_NONE;
  const unsigned bit = static_cast<unsigned>(flag);
  const bool valid = bit <= ZULG_SCALE_NONE && (kFlags >> bit & 1) != 0;
  return __builtin_expect(valid, 1) ? ZULG_OK : ZULG_ERR_FLAG;
}

// The scale factors of one length, indexed by the flag.
template <class T>
struct ScaleFactors {
  T by_flag[ZULG_SCALE_NONE + 1];
};

template <class T>
constexpr ScaleFactors<T> scale_factors(T forward_by_n, T inverse_by_n, T by_sqrt_n) {
  ScaleFactors<T> factors{};
  factors.by_flag[ZULG_SCALE_FWD_BY_N] = forward_by_n;
  factors.by_flag[ZULG_SCALE_INV_BY_N] = inverse_by_n;
  factors.by_flag[ZULG_SCALE_BY_SQRT_N] = by_sqrt_n;
  factors.by_flag[ZULG_SCALE_NONE] = 1;
  return factors;
}

}  // namespace zulgen
