// The vector operations that generated kernels are written in. Arithmetic is the operators of the
// vector types; here are loads, stores, constants and lane moves, each one instruction.
#pragma once

#include "moves.h"  // the target's

namespace zulgen {

// Plain vectors, as an argument of a template has to be; g++'s __m128 has an attribute more.
using F4 = float __attribute__((vector_size(16)));
using D2 = double __attribute__((vector_size(16)));

inline F4 allF4(float x) { return _mm_set1_ps(x); }
inline F4 lanesF4(float a, float b, float c, float d) { return _mm_setr_ps(a, b, c, d); }
inline D2 allD2(double x) { return _mm_set1_pd(x); }
inline D2 lanesD2(double a, double b) { return _mm_setr_pd(a, b); }

// Access to whole vectors of an array that is aligned on 16 bytes, and of any array.
struct Aligned {
  static F4 load(const float* p) { return _mm_load_ps(p); }
  static void store(float* p, F4 v) { _mm_store_ps(p, v); }
  static D2 load(const double* p) { return _mm_load_pd(p); }
  static void store(double* p, D2 v) { _mm_store_pd(p, v); }
};
struct Unaligned {
  static F4 load(const float* p) { return _mm_loadu_ps(p); }
  static void store(float* p, F4 v) { _mm_storeu_ps(p, v); }
  static D2 load(const double* p) { return load_unaligned(p); }
  static void store(double* p, D2 v) { store_unaligned(p, v); }
};

// Half a vector, whatever the alignment; the upper half of the result is zero.
inline F4 load_low(const float* p) {
  return _mm_castsi128_ps(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(p)));
}
// The same half twice, by the load alone.
inline F4 load_twice(const float* p) {
  typedef double Half __attribute__((may_alias, aligned(4)));
  return _mm_castpd_ps(_mm_set1_pd(*reinterpret_cast<const Half*>(p)));
}
inline D2 load_twice(const double* p) { return _mm_loaddup_pd(p); }
// Two halves from two places. The duplicating load takes no shuffle port, and the merge may run on
// any of three.
inline F4 load_halves(const float* low, const float* high) {
  return _mm_castpd_ps(join_halves(_mm_castps_pd(load_low(low)), _mm_castps_pd(load_twice(high))));
}
inline D2 load_halves(const double* low, const double* high) {
  return join_halves(_mm_load_sd(low), _mm_loaddup_pd(high));
}
inline void store_low(float* p, F4 v) { _mm_storel_pi(reinterpret_cast<__m64*>(p), v); }
inline void store_high(float* p, F4 v) { _mm_storeh_pi(reinterpret_cast<__m64*>(p), v); }

// Lanes a and b of `x`, then lanes c and d of `y`. Halves move by integer instructions: those run
// on more ports than movlhps and movhlps, which compilers would take instead of the shuffle.
template <int a, int b, int c, int d>
F4 shuffle(F4 x, F4 y) {
  if constexpr (a == 0 && b == 1 && c == 0 && d == 1) {
    return _mm_castsi128_ps(_mm_unpacklo_epi64(_mm_castps_si128(x), _mm_castps_si128(y)));
  } else if constexpr (a == 2 && b == 3 && c == 2 && d == 3) {
    return _mm_castsi128_ps(_mm_unpackhi_epi64(_mm_castps_si128(x), _mm_castps_si128(y)));
  } else {
    return _mm_shuffle_ps(x, y, _MM_SHUFFLE(d, c, b, a));
  }
}

template <int a, int b>
D2 shuffle(D2 x, D2 y) {
  if constexpr (a == 0 && b == 0) {
    return _mm_castsi128_pd(_mm_unpacklo_epi64(_mm_castpd_si128(x), _mm_castpd_si128(y)));
  } else if constexpr (a == 1 && b == 1) {
    return _mm_castsi128_pd(_mm_unpackhi_epi64(_mm_castpd_si128(x), _mm_castpd_si128(y)));
  } else {
    return _mm_shuffle_pd(x, y, b << 1 | a);
  }
}

// (x0, y0, x1, y1) and (x2, y2, x3, y3). The integer form runs on more ports than unpcklps.
inline F4 unpack_low(F4 x, F4 y) {
  return _mm_castsi128_ps(_mm_unpacklo_epi32(_mm_castps_si128(x), _mm_castps_si128(y)));
}
inline F4 unpack_high(F4 x, F4 y) {
  return _mm_castsi128_ps(_mm_unpackhi_epi32(_mm_castps_si128(x), _mm_castps_si128(y)));
}

// Negates the lanes marked 1.
template <int a, int b, int c, int d>
F4 flip_signs(F4 x) {
  return _mm_xor_ps(
      x, _mm_setr_ps(a ? -0.0f : 0.0f, b ? -0.0f : 0.0f, c ? -0.0f : 0.0f, d ? -0.0f : 0.0f));
}

template <int a, int b>
D2 flip_signs(D2 x) {
  return _mm_xor_pd(x, _mm_setr_pd(a ? -0.0 : 0.0, b ? -0.0 : 0.0));
}

// What packed kernels of scalars need besides. Two floats are the low half of a vector whose high
// half holds other floats that are used somewhere, or zeros: nothing that would slow the processor
// down.
using F2 = F4;
inline F2 allF2(float x) { return allF4(x); }
inline F2 lanesF2(float a, float b) { return _mm_setr_ps(a, b, 0, 0); }

// Vectors of a given type at any address.
template <class V>
V load(const void* p) {
  V v;
  __builtin_memcpy(&v, p, sizeof v);
  return v;
}
template <class V>
void store(void* p, V v) {
  __builtin_memcpy(p, &v, sizeof v);
}
inline F2 load_lanes(const float* low, const float* high) { return load_floats(low, high); }
template <int i>
void store_lane(float* p, F4 v) {
  *p = v[i];
}
template <int i>
void store_lane(double* p, D2 v) {
  *p = v[i];
}

template <int i>
float lane(F4 v) {
  return v[i];
}
template <int i>
double lane(D2 v) {
  return v[i];
}

// Lane i of `x` and lane j of `y`, which may be scalars.
inline D2 as_vector(D2 v) { return v; }
inline D2 as_vector(double v) {
  D2 result;
  asm("" : "=x"(result) : "0"(v));
  return result;
}
template <int i, int j, class X, class Y>
D2 join_doubles(X x, Y y) {
  if constexpr (i == 0 && j == 1) {
    return join_halves(as_vector(x), as_vector(y));
  } else {
    return shuffle<i, j>(as_vector(x), as_vector(y));
  }
}
inline F2 as_vector(F2 v) { return v; }
// With zeros beside it: what else the register holds may be half a double, which as a float could be
// anything, and raise what flags it likes.
inline F2 as_vector(float v) { return _mm_set_ss(v); }
template <int i, int j, class X, class Y>
F2 join_floats(X x, Y y) {
  return two_floats<i, j>(as_vector(x), as_vector(y));
}

template <int a, int b>
F2 flip_signs(F2 x) {
  return flip_signs<a, b, 0, 0>(x);
}
// Subtracts in even lanes, adds in odd ones.
inline F4 subtract_add(F4 x, F4 y) { return _mm_addsub_ps(x, y); }
inline D2 subtract_add(D2 x, D2 y) { return _mm_addsub_pd(x, y); }

inline D2 widened(F2 x) { return _mm_cvtps_pd(x); }
inline F2 rounded(D2 x) { return _mm_cvtpd_ps(x); }

}  // namespace zulgen
