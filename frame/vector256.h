// The operations of vector.h on 256 bits, for targets that have them, and what goes between the
// widths. A vector of 128 bits may stand where the low half of a wider one is wanted.
#pragma once

#include "frame/vector.h"

namespace zulgen {

using F8 = float __attribute__((vector_size(32)));
using D4 = double __attribute__((vector_size(32)));

inline F8 allF8(float x) { return _mm256_set1_ps(x); }
inline F8 lanesF8(float a, float b, float c, float d, float e, float f, float g, float h) {
  return _mm256_setr_ps(a, b, c, d, e, f, g, h);
}
inline D4 allD4(double x) { return _mm256_set1_pd(x); }
inline D4 lanesD4(double a, double b, double c, double d) { return _mm256_setr_pd(a, b, c, d); }

// Half a vector from memory, into both halves.
template <class V>
V load_twice(const void* p) {
  return V(_mm256_broadcastsi128_si256(_mm_loadu_si128(static_cast<const __m128i*>(p))));
}

// Two floats into both places of the low half, two into those of the high half: the merge may run
// on any of three ports.
inline F8 load_each_twice(const float* low, const float* high) {
  double x, y;
  __builtin_memcpy(&x, low, sizeof x);
  __builtin_memcpy(&y, high, sizeof y);
  return F8(_mm256_blend_pd(_mm256_set1_pd(x), _mm256_set1_pd(y), 0b1100));
}

// Two halves from two places.
template <class V>
V load_two(const void* low, const void* high) {
  const __m128i half = _mm_loadu_si128(static_cast<const __m128i*>(low));
  return V(_mm256_inserti128_si256(_mm256_castsi128_si256(half),
                                   _mm_loadu_si128(static_cast<const __m128i*>(high)), 1));
}

// A vector of 128 bits as the low half of a wider one, whose high half nobody reads.
inline F8 as_low_half(F4 v) { return _mm256_castps128_ps256(v); }
inline D4 as_low_half(D2 v) { return _mm256_castpd128_pd256(v); }
inline F8 as_low_half(F8 v) { return v; }
inline D4 as_low_half(D4 v) { return v; }

inline F4 low_half(F8 v) { return _mm256_castps256_ps128(v); }
inline D2 low_half(D4 v) { return _mm256_castpd256_pd128(v); }
inline F4 high_half(F8 v) { return _mm256_extractf128_ps(v, 1); }
inline D2 high_half(D4 v) { return _mm256_extractf128_pd(v, 1); }

// The low half of `low` and the high half of `high`.
template <class V>
F8 join_halves(V low, F8 high) {
  return _mm256_blend_ps(high, as_low_half(low), 0b1111);
}
template <class V>
D4 join_halves(V low, D4 high) {
  return _mm256_blend_pd(high, as_low_half(low), 0b11);
}

// The low halves of both.
inline F8 insert128(F8 x, F4 y) { return _mm256_insertf128_ps(x, y, 1); }
inline D4 insert128(D4 x, D2 y) { return _mm256_insertf128_pd(x, y, 1); }
template <class V, class W>
auto insert_high(V low, W high) {
  if constexpr (sizeof(W) == 32) {
    return insert128(as_low_half(low), low_half(high));
  } else {
    return insert128(as_low_half(low), high);
  }
}

// The high half of `low`, and, as half 2 or 3 counting from there on, half of `high`.
template <int a, int b, class V>
F8 permute_halves(F8 low, V high) {
  return _mm256_permute2f128_ps(low, as_low_half(high), b << 4 | a);
}
template <int a, int b, class V>
D4 permute_halves(D4 low, V high) {
  return _mm256_permute2f128_pd(low, as_low_half(high), b << 4 | a);
}

// In each half: lanes a and b of `x`, then lanes c and d of `y`. Integer instructions run on more
// ports than what compilers make of some shuffles; so they do below.
template <int a, int b, int c, int d>
F8 shuffle(F8 x, F8 y) {
  if constexpr (a == 0 && b == 1 && c == 0 && d == 1) {
    return F8(_mm256_unpacklo_epi64(__m256i(x), __m256i(y)));
  } else if constexpr (a == 2 && b == 3 && c == 2 && d == 3) {
    return F8(_mm256_unpackhi_epi64(__m256i(x), __m256i(y)));
  } else {
    return _mm256_shuffle_ps(x, y, _MM_SHUFFLE(d, c, b, a));
  }
}
template <int a, int b, int c, int d>
F8 shuffle(F8 x) {
  return F8(_mm256_shuffle_epi32(__m256i(x), _MM_SHUFFLE(d, c, b, a)));
}

// Lanes a and c of `x` and lanes b and d of `y`, all in the halves that they come from.
template <int a, int b, int c, int d>
D4 shuffle(D4 x, D4 y) {
  if constexpr (a == 0 && b == 0 && c == 2 && d == 2) {
    return D4(_mm256_unpacklo_epi64(__m256i(x), __m256i(y)));
  } else if constexpr (a == 1 && b == 1 && c == 3 && d == 3) {
    return D4(_mm256_unpackhi_epi64(__m256i(x), __m256i(y)));
  } else {
    return _mm256_shuffle_pd(x, y, (d - 2) << 3 | (c - 2) << 2 | b << 1 | a);
  }
}
template <int a, int b, int c, int d>
D4 shuffle(D4 x) {
  if constexpr (a == 1 && b == 0 && c == 3 && d == 2) {
    return D4(_mm256_shuffle_epi32(__m256i(x), _MM_SHUFFLE(1, 0, 3, 2)));
  } else {
    return shuffle<a, b, c, d>(x, x);
  }
}

// Vectors in memory with their lanes in descending order.
inline F4 reversed_halves(F4 v) { return shuffle<3, 2, 1, 0>(v, v); }
inline D2 reversed_halves(D2 v) { return shuffle<1, 0>(v, v); }
inline F8 reversed_halves(F8 v) { return shuffle<3, 2, 1, 0>(v); }
inline D4 reversed_halves(D4 v) { return shuffle<1, 0, 3, 2>(v); }
template <class V, class T>
V load_reversed(const T* p) {
  if constexpr (sizeof(V) == 16) {
    return reversed_halves(load<V>(p));
  } else {
    return reversed_halves(load_two<V>(p + 16 / sizeof(T), p));
  }
}
template <class V, class T>
void store_reversed(T* p, V v) {
  v = reversed_halves(v);
  if constexpr (sizeof(V) == 16) {
    store(p, v);
  } else {
    store(p, high_half(v));
    store(p + 16 / sizeof(T), low_half(v));
  }
}

// In each half: lanes 0 and 1, or 2 and 3, of `x` and `y` in turn.
inline F8 unpack_low(F8 x, F8 y) { return F8(_mm256_unpacklo_epi32(__m256i(x), __m256i(y))); }
inline F8 unpack_high(F8 x, F8 y) { return F8(_mm256_unpackhi_epi32(__m256i(x), __m256i(y))); }

// Negates the lanes marked 1.
template <int a, int b, int c, int d, int e, int f, int g, int h>
F8 flip_signs(F8 x) {
  return _mm256_xor_ps(
      x, _mm256_setr_ps(a ? -0.0f : 0.0f, b ? -0.0f : 0.0f, c ? -0.0f : 0.0f, d ? -0.0f : 0.0f,
                        e ? -0.0f : 0.0f, f ? -0.0f : 0.0f, g ? -0.0f : 0.0f, h ? -0.0f : 0.0f));
}
template <int a, int b, int c, int d>
D4 flip_signs(D4 x) {
  return _mm256_xor_pd(
      x, _mm256_setr_pd(a ? -0.0 : 0.0, b ? -0.0 : 0.0, c ? -0.0 : 0.0, d ? -0.0 : 0.0));
}

// Subtracts in even lanes, adds in odd ones.
inline F8 subtract_add(F8 x, F8 y) { return _mm256_addsub_ps(x, y); }
inline D4 subtract_add(D4 x, D4 y) { return _mm256_addsub_pd(x, y); }

inline D4 widened_four(F4 x) { return _mm256_cvtps_pd(x); }
inline F4 rounded(D4 x) { return _mm256_cvtpd_ps(x); }

}  // namespace zulgen
