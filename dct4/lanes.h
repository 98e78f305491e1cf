// How the kernels reach memory. Inside a plan's block, vectors are aligned on 16 bytes. Source and
// destination of a transform are aligned as single samples: there, vectors are put together and
// taken apart sample by sample.
#pragma once

#include "frame/kernel.h"
#include "frame/vector.h"

namespace zulgen {

// The vector of each sample type, of L samples.
template <class Sample>
struct LanesOf;

template <>
struct LanesOf<float> {
  using Vector = F4;
  static constexpr int kCount = 4;
  static F4 spread(float x) { return allF4(x); }
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
struct LanesOf<double> {
  using Vector = D2;
  static constexpr int kCount = 2;
  static D2 spread(double x) { return allD2(x); }
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

// The inputs u[s] of L transforms T(N), in neighbouring columns of the source: the even ones row by
// row upwards, the odd ones downwards, with their lanes in descending order.
template <class Sample>
struct Columns {
  const Sample* forward;   // u[0]
  const Sample* reversed;  // u[1]
  int stride;
  ZULGEN_BODY auto load(int s) const {
    return s % 2 == 0 ? LanesOf<Sample>::gather(forward + s / 2 * stride, 1)
                      : LanesOf<Sample>::gather(reversed + s / 2 * stride, -1);
  }
};

// Aligned vectors to read, one a row.
template <class Sample>
struct SourceRows {
  const Sample* first;
  int stride;
  ZULGEN_BODY auto load(int row) const { return Aligned::load(first + row * stride); }
};

// Aligned vectors to write, one a row.
template <class Sample>
struct Rows {
  Sample* first;
  int stride;
  ZULGEN_BODY void store(int row, typename LanesOf<Sample>::Vector v) const {
    Aligned::store(first + row * stride, v);
  }
};

// Aligned vectors side by side.
template <class Sample>
struct Table {
  const Sample* first;
  ZULGEN_BODY auto load(int i) const { return Aligned::load(first + i * LanesOf<Sample>::kCount); }
};

// The results of a skew transform: vectors 4 a and 4 a + 1 go to two rows that move up with a,
// 4 a + 2 and 4 a + 3 to two others.
template <class Sample>
struct RowPairs {
  Sample* direct;
  Sample* mirrored;
  int row;   // from the real to the imaginary part
  int step;  // from a to a + 1
  ZULGEN_BODY void store(int i, typename LanesOf<Sample>::Vector v) const {
    Sample* const pair = (i % 4 < 2 ? direct : mirrored) + i / 4 * step;
    Aligned::store(i % 2 == 0 ? pair : pair + row, v);
  }
};

// The 2 d results of L second stages: o[0], o[1], o[3], ... upwards in steps, o[2], o[4], ... and
// the last likewise, with their lanes in descending order.
template <class Sample, int d>
struct Results {
  Sample* forward;
  Sample* reversed;
  int step;
  ZULGEN_BODY void store(int i, typename LanesOf<Sample>::Vector v) const {
    const bool is_forward = i == 0 || (i % 2 == 1 && i != 2 * d - 1);
    if (is_forward) {
      LanesOf<Sample>::scatter(forward + (i + 1) / 2 * step, 1, v);
    } else {
      LanesOf<Sample>::scatter(reversed + (i - 1) / 2 * step, -1, v);
    }
  }

  // The results of B groups, which stand in `rows`: all vectors o[0], all o[1], ...
  template <int B>
  ZULGEN_BODY void store_rows(const Sample* rows) const {
    constexpr int L = LanesOf<Sample>::kCount;
    const auto up = [&](Sample * p) __attribute__((always_inline)) {
#pragma GCC unroll 4
      for (int i = 0; i < B; ++i) LanesOf<Sample>::scatter(p + i * L, 1, rows + i * L);
      rows += B * L;
    };
    const auto down = [&](Sample * p) __attribute__((always_inline)) {
#pragma GCC unroll 4
      for (int i = 0; i < B; ++i) LanesOf<Sample>::scatter(p - i * L, -1, rows + i * L);
      rows += B * L;
    };
    up(forward);
    for (int l = 1; l < d; ++l) {
      up(forward + l * step);
      down(reversed + (l - 1) * step);
    }
    down(reversed + (d - 1) * step);
  }
};

}  // namespace zulgen
