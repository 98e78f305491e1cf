// How the kernels reach memory. Inside a plan's block, vectors are aligned on 16 bytes. Source and
// destination of a transform are aligned as single samples: there, unless any address will do,
// vectors are put together and taken apart sample by sample.
#pragma once

#include "frame/rows.h"

namespace zulgen {

// Vectors and single samples, `step` apart, which is 1 or -1.
template <class V, bool any_address = kAnyAddress>
struct Lanes;

template <class V>
struct Lanes<V, true> {
  ZULGEN_BODY static V gather(const SampleOf<V>* p, int step) {
    return step > 0 ? load<V>(p) : load_reversed<V>(p + 1 - kLanes<V>);
  }
  ZULGEN_BODY static void scatter(SampleOf<V>* p, int step, V v) {
    step > 0 ? store(p, v) : store_reversed(p + 1 - kLanes<V>, v);
  }
  ZULGEN_BODY static void scatter(SampleOf<V>* p, int step, const SampleOf<V>* v) {
    scatter(p, step, load<V>(v));
  }
};

template <>
struct Lanes<F4, false> {
  // p[0], p[step], p[2 step], p[3 step].
  ZULGEN_BODY static F4 gather(const float* p, int step) {
    const F4 low = unpack_low(_mm_load_ss(p), _mm_load_ss(p + step));
    const F4 high = unpack_low(_mm_load_ss(p + 2 * step), _mm_load_ss(p + 3 * step));
    return shuffle<0, 1, 0, 1>(low, high);
  }
  ZULGEN_BODY static void scatter(float* p, int step, F4 v) {
    _mm_store_ss(p, v);
    _mm_store_ss(p + step, shuffle<1, 1, 1, 1>(v, v));
    _mm_store_ss(p + 2 * step, unpack_high(v, v));
    _mm_store_ss(p + 3 * step, shuffle<3, 3, 3, 3>(v, v));
  }
  // The same from memory, which takes no shuffles.
  ZULGEN_BODY static void scatter(float* p, int step, const float* v) {
    p[0] = v[0];
    p[step] = v[1];
    p[2 * step] = v[2];
    p[3 * step] = v[3];
  }
};

template <>
struct Lanes<D2, false> {
  ZULGEN_BODY static D2 gather(const double* p, int step) {
    return _mm_loadh_pd(_mm_load_sd(p), p + step);
  }
  ZULGEN_BODY static void scatter(double* p, int step, D2 v) {
    _mm_storel_pd(p, v);
    _mm_storeh_pd(p + step, v);
  }
  ZULGEN_BODY static void scatter(double* p, int step, const double* v) {
    scatter(p, step, _mm_load_pd(v));
  }
};

// The inputs u[s] of transforms T(N) in neighbouring columns of the source: the even ones row by
// row upwards, the odd ones downwards, with their lanes in descending order.
template <class V>
struct Columns {
  const SampleOf<V>* forward;   // u[0]
  const SampleOf<V>* reversed;  // u[1]
  int stride;
  ZULGEN_BODY V load(int s) const {
    return s % 2 == 0 ? Lanes<V>::gather(forward + s / 2 * stride, 1)
                      : Lanes<V>::gather(reversed + s / 2 * stride, -1);
  }
};

// Vectors side by side, to read.
template <class V>
ZULGEN_BODY SourceRows<V> vectors_from(const SampleOf<V>* first) {
  return {first, kLanes<V>};
}

// The same of a table whose vectors are those of a plan, half as wide as V may be: the upper halves
// stand `distance` samples behind the lower ones, which is 0 if they are equal.
template <class V, int lanes, int distance>
struct Table {
  const SampleOf<V>* first;
  ZULGEN_BODY V load(int i) const {
    const SampleOf<V>* const p = first + i * lanes;
    if constexpr (lanes == kLanes<V>) {
      return load_by<V, Aligned>(p);
    } else if constexpr (distance == 0) {
      return load_twice<V>(p);
    } else {
      return load_two<V>(p, p + distance);
    }
  }
};

// The results of a skew transform: vectors 4 a and 4 a + 1 go to two rows that move up with a,
// 4 a + 2 and 4 a + 3 to two others.
template <class V>
struct RowPairs {
  SampleOf<V>* direct;
  SampleOf<V>* mirrored;
  int row;   // from the real to the imaginary part
  int step;  // from a to a + 1
  ZULGEN_BODY void store(int i, V v) const {
    SampleOf<V>* const pair = (i % 4 < 2 ? direct : mirrored) + i / 4 * step;
    store_by<V, Aligned>(i % 2 == 0 ? pair : pair + row, v);
  }
};

// The 2 d results of second stages: o[0], o[1], o[3], ... upwards in steps, o[2], o[4], ... and the
// last likewise, with their lanes in descending order.
template <class V, int d>
struct Results {
  SampleOf<V>* forward;
  SampleOf<V>* reversed;
  int step;
  ZULGEN_BODY void store(int i, V v) const {
    const bool is_forward = i == 0 || (i % 2 == 1 && i != 2 * d - 1);
    if (is_forward) {
      Lanes<V>::scatter(forward + (i + 1) / 2 * step, 1, v);
    } else {
      Lanes<V>::scatter(reversed + (i - 1) / 2 * step, -1, v);
    }
  }

  // The results of B groups, which stand in `rows`: all vectors o[0], all o[1], ...
  template <int B>
  ZULGEN_BODY void store_rows(const SampleOf<V>* rows) const {
    const auto put = [&](SampleOf<V> * p, int direction) __attribute__((always_inline)) {
#pragma GCC unroll 4
      for (int i = 0; i < B; ++i, p += direction * kLanes<V>, rows += kLanes<V>) {
        Lanes<V>::scatter(p, direction, rows);
      }
    };
    put(forward, 1);
    for (int l = 1; l < d; ++l) {
      put(forward + l * step, 1);
      put(reversed + (l - 1) * step, -1);
    }
    put(reversed + (d - 1) * step, -1);
  }
};

}  // namespace zulgen
