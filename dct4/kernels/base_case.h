// The DCT-IV of lengths 2 to 32,
//
//   y[k] = sum over j of x[j] * cos(pi / n * (j + 1/2) (k + 1/2)),
//
// in the same two stages as a planned length, with m of 1 or 2: each of d columns makes a T(2 m),
// its outputs are rotated, and m maps of d values each make the result.
#pragma once

#include <span>
#include <vector>

#include "dct4/kernels/first_stage.h"
#include "dct4/kernels/second_stage.h"

namespace dct4 {

// z * exp(2 pi i numerator / denominator) in three lifting steps: three multiplications instead of
// four.
template <class V>
Complex<V> lift(long numerator, long denominator, const Complex<V>& z) {
  // The complement of the angle to a right one.
  const long top = denominator - 4 * numerator, bottom = 4 * denominator;
  const Number tangent = gen::tan_of_turn(top, 2 * bottom), sine = gen::sin_of_turn(top, bottom);
  const V e = z.re + tangent * z.im;
  const V re = sine * e - z.im;
  return {re, e - tangent * re};
}

// `radices` are those of the second stage.
template <class V>
std::vector<V> base_case(const std::vector<V>& x, std::span<const int> radices) {
  const int n = static_cast<int>(x.size()), m = n < 8 ? 1 : 2, d = n / (2 * m);
  std::vector<ComplexBlock<V>> rotated(m, ComplexBlock<V>(d));
  for (int p = 0; p < d; ++p) {
    ComplexBlock<V> z;
    if (m == 1) {
      z = {{x[p], -x[n - 1 - p]}};
    } else {
      z = first_stage_of_four<V>({x[p], x[2 * d - 1 - p], x[2 * d + p], x[4 * d - 1 - p]});
    }
    for (int q = 0; q < m; ++q) {
      const long turns = (2 * p + 1) * (2 * q + 1), whole = 8 * n;
      rotated[q][p] =
          n == 4 ? lift(turns, whole, z[q]) : rotate(rotation_by_turn(turns, whole), z[q]);
    }
  }
  std::vector<V> y(n);
  for (int q = 0; q < m; ++q) {
    const std::vector<V> o = second_stage(rotated[q], radices, LastSign::kTurned);
    y[q] = o[0];
    for (int l = 1; l < d; ++l) {
      y[2 * m * l + q] = o[2 * l - 1];
      y[2 * m * l - 1 - q] = o[2 * l];
    }
    y[n - 1 - q] = o[2 * d - 1];
  }
  return y;
}

}  // namespace dct4
