// What every kernel does before its arithmetic: choosing a body, checking the arguments, finding
// the scale factor. Everything here is inlined into the kernel.
#pragma once

#include <stdint.h>

#include <type_traits>

#include "machine.h"  // the target's
#include "zulgen.h"

#define ZULGEN_EXPORT extern "C" __attribute__((visibility("default")))
// Another name of an exported function, by which the library itself reaches it.
#define ZULGEN_HIDDEN_NAME(exported) \
  extern "C" __attribute__((visibility("hidden"), alias(#exported)))
// Generated arithmetic that becomes part of the function that calls it.
#define ZULGEN_BODY inline __attribute__((always_inline))

// The exported function zulgNAME, with its hidden name, of a kernel without vectors. `arguments`
// declares what `pass` hands on, each in parentheses, to the function NAME that holds the body.
#define ZULGEN_SCALAR_KERNEL(name, arguments, pass)                          \
  ZULGEN_EXPORT zulgResult zulg##name arguments { return name pass; }        \
  ZULGEN_HIDDEN_NAME(zulg##name) zulgResult owng##name arguments;
// The same of kernels of vectors, the bodies of which are NAME<Aligned> and NAME<Unaligned>: which of
// them there are is the target's business. A short kernel needs no stack.
//   ZULGEN_VECTOR_KERNEL(name, arguments, pass)
//   ZULGEN_SHORT_VECTOR_KERNEL(name, arguments, pass)

namespace zulgen {

// Whether all of these addresses are multiples of 16.
template <class... Pointers>
bool is_aligned(Pointers... pointers) {
  return __builtin_expect(((reinterpret_cast<uintptr_t>(pointers) | ...) % 16) == 0, 1);
}

// The scale factors of one length, indexed by the flag. A factor of zero marks a number that is no
// flag.
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

// Source, then destination, then flag; ZULG_OK if all will do.
template <class T>
inline zulgResult check_arguments(const void* source, const void* destination, zulgScaleFlag flag,
                                  const ScaleFactors<T>& factors) {
  if (__builtin_expect(source == nullptr || destination == nullptr, 0)) return ZULG_ERR_NULL_PTR;
  if (__builtin_expect(static_cast<unsigned>(flag) > ZULG_SCALE_NONE, 0)) return ZULG_ERR_FLAG;
  // The bits of a float, or the upper half of a double: a test of integers is the shorter one.
  int bits;
  const char* factor = reinterpret_cast<const char*>(&factors.by_flag[flag]);
  __builtin_memcpy(&bits, factor + sizeof(T) - sizeof bits, sizeof bits);
  return __builtin_expect(bits == 0, 0) ? ZULG_ERR_FLAG : ZULG_OK;
}

// The same for a transform that is its own inverse, whose factor is 1 / N under either of the flags
// that have one. `factor` becomes the one that the flag selects. The choice is between integers,
// which stand in the instructions: no table has to be found first.
template <class T>
inline zulgResult check_arguments(const void* source, const void* destination, zulgScaleFlag flag,
                                  T by_n, T by_sqrt_n, T& factor) {
  if (__builtin_expect(source == nullptr || destination == nullptr, 0)) return ZULG_ERR_NULL_PTR;
  using Bits = std::conditional_t<sizeof(T) == sizeof(uint32_t), uint32_t, uint64_t>;
  const auto bits_of = [](T value) { return __builtin_bit_cast(Bits, value); };
  Bits bits = bits_of(1);
  if (__builtin_expect(flag != ZULG_SCALE_NONE, 0)) {
    if (flag == ZULG_SCALE_BY_SQRT_N) {
      bits = bits_of(by_sqrt_n);
    } else if (flag == ZULG_SCALE_FWD_BY_N || flag == ZULG_SCALE_INV_BY_N) {
      bits = bits_of(by_n);
    } else {
      return ZULG_ERR_FLAG;
    }
  }
  factor = __builtin_bit_cast(T, bits);
  return ZULG_OK;
}

}  // namespace zulgen
