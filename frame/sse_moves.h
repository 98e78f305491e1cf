// Operations that are written in their own way for SSE.
#pragma once

#include <pmmintrin.h>

namespace zulgen {

// The low half of `low` and the high half of `high`. Written out, as compilers would take the load
// that often stands before it into a movhps, which runs on the one port that all shuffles want.
inline __m128d join_halves(__m128d low, __m128d high) {
  asm("movsd %1, %0" : "+x"(high) : "x"(low));
  return high;
}

// Lane i of `x` and lane j of `y`, as the low half.
template <int i, int j>
__m128 two_floats(__m128 x, __m128 y) {
  if constexpr (i == 0 && j == 0) {
    return _mm_unpacklo_ps(x, y);
  } else {
    const __m128 both = _mm_shuffle_ps(x, y, _MM_SHUFFLE(j, j, i, i));
    return _mm_shuffle_ps(both, both, _MM_SHUFFLE(2, 0, 2, 0));
  }
}
inline __m128 load_floats(const float* low, const float* high) {
  return _mm_unpacklo_ps(_mm_load_ss(low), _mm_load_ss(high));
}

inline __m128d load_unaligned(const double* p) { return _mm_loadh_pd(_mm_load_sd(p), p + 1); }
inline void store_unaligned(double* p, __m128d v) {
  _mm_storel_pd(p, v);
  _mm_storeh_pd(p + 1, v);
}

// 2 * x: a product, written out, as compilers would make a sum of it, for which two busier ports
// compete.
inline constexpr float kTwo32f = 2;
inline constexpr double kTwo64f = 2;
inline float doubled(float x) {
  asm("mulss %1, %0" : "+x"(x) : "m"(kTwo32f));
  return x;
}
inline double doubled(double x) {
  asm("mulsd %1, %0" : "+x"(x) : "m"(kTwo64f));
  return x;
}

}  // namespace zulgen
