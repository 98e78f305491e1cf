// The map of the second stage: d complex values (A, B) to 2 d reals. It is the transpose of
// T(2 d) of the first stage, but for the sign of its last output:
//
//   o[0]     = sum over p of A(p)
//   o[2l-1]  = sum over p of A(p) cos phi(p, l) - B(p) sin phi(p, l),   l = 1 to d - 1
//   o[2l]    = sum over p of A(p) cos phi(p, l) + B(p) sin phi(p, l),   l = 1 to d - 1
//   o[2d-1]  = sum over p of B(p) sin phi(p, d)
//
// with phi(p, l) = pi (2 p + 1) l / (2 d). Transposing turns every edge round: a rotation becomes
// the one back, a sum a branch, and the multiplications and additions stay as many as they are.
#pragma once

#include <span>
#include <utility>
#include <vector>

#include "dct4/kernels/skew_sum.h"

namespace dct4 {

// What the last output is: that of the transpose, or its negative.
enum class LastSign { kPlain, kTurned };

// One radix for every split, down to 2 or 4 values.
template <class V>
std::vector<V> second_stage(const ComplexBlock<V>& z, std::span<const int> radices, LastSign sign) {
  const int n = 2 * static_cast<int>(z.size());
  // The sign is turned where the output arises, which takes no operation.
  const bool turned = sign == LastSign::kTurned;
  if (n == 2) return {z[0].re, turned ? z[0].im : -z[0].im};
  if (n == 4) {
    const Number diagonal = gen::cos_of_turn(1, 8);
    const V g = diagonal * (z[0].re - z[1].re), h = diagonal * (z[0].im + z[1].im);
    return {z[0].re + z[1].re, g - h, g + h, turned ? z[0].im - z[1].im : z[1].im - z[0].im};
  }
  const int r = radices[0], m = n / r;
  std::vector<ComplexBlock<V>> parts(r, ComplexBlock<V>(m / 2));
  for (int kappa = 0; kappa < m / 2; ++kappa) {
    // The transpose of conjugating turns the sign of an imaginary part, which the butterflies take
    // in.
    const auto meet = [&](int a) {
      const Complex<V>&p = z[kappa + m * a], &q = z[m - 1 - kappa + m * (r / 2 - 1 - a)];
      return std::pair<Complex<V>, Complex<V>>{{p.re + q.re, p.im - q.im},
                                               {p.re - q.re, p.im + q.im}};
    };
    ComplexBlock<V> x;
    if (r == 2) {
      const auto [sum, difference] = meet(0);
      x = {sum, difference};
    } else {
      const auto [s, d] = meet(0);
      const auto [p, q] = meet(1);
      x = {s + p, d + minus_i(q), s - p, d - minus_i(q)};
    }
    for (int rho = 0; rho < r; ++rho) {
      const auto by = rotation_by_turn(rho * (2 * kappa + 1), 2 * n);
      parts[rho][kappa] = rho == 0 ? x[rho] : rotate_back(by, x[rho]);
    }
  }
  std::vector<V> o(n);
  for (int rho = 0; rho < r; ++rho) {
    const auto w = second_stage(parts[rho], radices.subspan(1), rho == 0 ? sign : LastSign::kPlain);
    for (int tau = 0; tau < m / 2; ++tau) {
      o[2 * (rho + r * tau)] = w[2 * tau];
      o[2 * (r * (tau + 1) - rho) - 1] = w[2 * tau + 1];
    }
  }
  return o;
}

}  // namespace dct4
