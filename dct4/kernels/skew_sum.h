// The skew transform: a Fourier sum of r complex values whose frequencies are moved by lambda,
//
//   Y[a] = sum over rho of Z[rho] * exp(2 pi i rho (lambda + a) / r),   a = 0 to r - 1.
//
// Where it stands, the upper half of Y is wanted conjugated. That costs nothing: Y[a] and
// Y[a + r/2] leave the sum as P + Q and P - Q, and the conjugate's imaginary part is Q - P.
#pragma once

#include <vector>

#include "gen/expr.h"
#include "networks/complex.h"

namespace dct4 {

using gen::Number;
using networks::Complex;
using networks::operator*;

template <class V>
using ComplexBlock = std::vector<Complex<V>>;

// Cosine and sine of one angle: constants of a kernel, or values from a table.
template <class F>
struct Rotation {
  F cosine, sine;
};

inline Rotation<Number> rotation_by_turn(long numerator, long denominator) {
  return {gen::cos_of_turn(numerator, denominator), gen::sin_of_turn(numerator, denominator)};
}

// A product whose constant keeps its sign, so that no sum of two comes out negated.
template <class F, class V>
V times(const F& factor, const V& a) {
  return factor * a;
}
inline gen::Expr times(const Number& factor, const gen::Expr& a) {
  const int lanes = (*a.graph)[a.value.node].lane_count;
  return {a.graph, a.graph->mul(gen::Factors(lanes, factor), a.value)};
}

// z * exp(i angle).
template <class F, class V>
Complex<V> rotate(const Rotation<F>& by, const Complex<V>& z) {
  return {times(by.cosine, z.re) - times(by.sine, z.im),
          times(by.sine, z.re) + times(by.cosine, z.im)};
}

// z * exp(-i angle).
template <class F, class V>
Complex<V> rotate_back(const Rotation<F>& by, const Complex<V>& z) {
  return {times(by.cosine, z.re) + times(by.sine, z.im),
          times(by.cosine, z.im) - times(by.sine, z.re)};
}

enum class UpperHalf { kPlain, kConjugated };

// W[0 to r-1] to sum over k of W[k] * exp(2 pi i k a / r), for r of 2, 4 and 8.
template <class V>
ComplexBlock<V> fourier_sum(const ComplexBlock<V>& w, UpperHalf upper) {
  const std::size_t r = w.size();
  ComplexBlock<V> y(r);
  const auto butterfly = [&](std::size_t a, const Complex<V>& p, const Complex<V>& q) {
    y[a] = p + q;
    y[a + r / 2] = {p.re - q.re, upper == UpperHalf::kConjugated ? q.im - p.im : p.im - q.im};
  };
  const auto times_i = [](const Complex<V>& z) { return -minus_i(z); };
  if (r == 2) {
    butterfly(0, w[0], w[1]);
  } else if (r == 4) {
    const Complex<V> s = w[0] + w[2], t = w[0] - w[2], b = w[1] + w[3], e = w[1] - w[3];
    butterfly(0, s, b);
    butterfly(1, t, times_i(e));
  } else {
    const auto even = fourier_sum<V>({w[0], w[2], w[4], w[6]}, UpperHalf::kPlain);
    const auto odd = fourier_sum<V>({w[1], w[3], w[5], w[7]}, UpperHalf::kPlain);
    const Number diagonal = gen::cos_of_turn(1, 8);
    // The odd part's values, turned by a eighths of a turn.
    const auto sum = [](const Complex<V>& z) { return z.re + z.im; };
    const auto difference = [](const Complex<V>& z) { return z.re - z.im; };
    butterfly(0, even[0], odd[0]);
    butterfly(1, even[1], {diagonal * difference(odd[1]), diagonal * sum(odd[1])});
    butterfly(2, even[2], times_i(odd[2]));
    butterfly(3, even[3], {-(diagonal * sum(odd[3])), diagonal * difference(odd[3])});
  }
  return y;
}

// The skew transform of 2, 4 or 8 values. `by[k - 1]` is the rotation by 2 pi k lambda / r.
template <class F, class V>
ComplexBlock<V> skew_sum(ComplexBlock<V> z, const std::vector<Rotation<F>>& by, UpperHalf upper) {
  for (std::size_t k = 1; k < z.size(); ++k) z[k] = rotate(by[k - 1], z[k]);
  return fourier_sum(z, upper);
}

// The skew transform of 16 or 32 values in two layers: four of r / 4 values that have rho mod 4 in
// common, with the rotations `within`; then, on what these have at frequency j, r / 4 of four
// values, with the rotations `across[3 j]` to `across[3 j + 2]`.
template <class F, class V>
ComplexBlock<V> skew_sum(const ComplexBlock<V>& z, const std::vector<Rotation<F>>& within,
                         const std::vector<Rotation<F>>& across, UpperHalf upper) {
  const std::size_t r = z.size(), count = r / 4;
  std::vector<ComplexBlock<V>> layer;
  for (std::size_t first = 0; first < 4; ++first) {
    ComplexBlock<V> part;
    for (std::size_t i = 0; i < count; ++i) part.push_back(z[first + 4 * i]);
    layer.push_back(skew_sum(part, within, UpperHalf::kPlain));
  }
  ComplexBlock<V> y(r);
  for (std::size_t j = 0; j < count; ++j) {
    const std::vector<Rotation<F>> by(across.begin() + 3 * j, across.begin() + 3 * j + 3);
    const auto part =
        skew_sum<F, V>({layer[0][j], layer[1][j], layer[2][j], layer[3][j]}, by, upper);
    for (std::size_t a = 0; a < 4; ++a) y[j + count * a] = part[a];
  }
  return y;
}

}  // namespace dct4
