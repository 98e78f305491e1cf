// Operations that are written in their own way for processors with AVX2.
#pragma once

#include <immintrin.h>

namespace zulgen {

// The low half of `low` and the high half of `high`.
inline __m128d join_halves(__m128d low, __m128d high) { return _mm_blend_pd(high, low, 1); }

// Lane i of `x` and lane j of `y`, as the low half.
template <int i, int j>
__m128 two_floats(__m128 x, __m128 y) {
  if constexpr (i == 0) {
    return _mm_insert_ps(x, y, j << 6 | 1 << 4);
  } else if constexpr (j == 1) {
    return _mm_insert_ps(y, x, i << 6);
  } else {
    return _mm_insert_ps(_mm_shuffle_ps(x, x, i), y, j << 6 | 1 << 4);
  }
}
// Written out, as compilers would load both and then clear the high half.
inline __m128 load_floats(const float* low, const float* high) {
  __m128 result;
  asm("vinsertps $16, %2, %1, %0" : "=x"(result) : "x"(_mm_load_ss(low)), "m"(*high));
  return result;
}

inline __m128d load_unaligned(const double* p) { return _mm_loadu_pd(p); }
inline void store_unaligned(double* p, __m128d v) { _mm_storeu_pd(p, v); }

// 2 * x: a product, written out, as compilers would make a sum of it, for which two busier ports
// compete.
inline constexpr float kTwo32f = 2;
inline constexpr double kTwo64f = 2;
inline float doubled(float x) {
  float result;
  asm("vmulss %2, %1, %0" : "=x"(result) : "x"(x), "m"(kTwo32f));
  return result;
}
inline double doubled(double x) {
  double result;
  asm("vmulsd %2, %1, %0" : "=x"(result) : "x"(x), "m"(kTwo64f));
  return result;
}

}  // namespace zulgen
