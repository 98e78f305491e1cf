// The transform T(N) of the first stage: N reals, u[0] to u[N-1], to N / 2 complex values
//
//   z[q] = sum over s of u[s] * exp(i pi t(s) (2 q + 1) / N),
//   t(s) = s / 2 for even s, -(s + 1) / 2 for odd s.
//
// So u is a real sequence v in zigzag order, v[0], v[-1], v[1], v[-2], ..., and z its DFT halfway
// between the bins.
#pragma once

#include <span>
#include <vector>

#include "dct4/kernels/skew_sum.h"
#include "gen/expr.h"

namespace dct4 {

// -a, as the subtraction from +0 that it is in a kernel.
inline gen::Expr negated(const gen::Expr& a) {
  const gen::Node& node = (*a.graph)[a.value.node];
  return gen::Expr{a.graph, a.graph->zero(node.precision, node.lane_count)} - a;
}
template <class V>
V negated(const V& a) {
  return V{} - a;
}

template <class V>
ComplexBlock<V> first_stage_of_four(const std::vector<V>& u) {
  const Number diagonal = gen::cos_of_turn(1, 8);
  const V sum = diagonal * (u[1] + u[2]), difference = diagonal * (u[2] - u[1]);
  return {{u[0] + sum, difference - u[3]}, {u[0] - sum, difference + u[3]}};
}

// T(2) and T(4) are written out. A longer T(N) takes the first radix r of the list, which holds one
// for every split: r transforms T(M), M = N / r, of every r-th value of v, then M / 2 skew
// transforms of r values.
template <class V>
ComplexBlock<V> first_stage(const std::vector<V>& u, std::span<const int> radices) {
  const int n = static_cast<int>(u.size());
  if (n == 2) return {{u[0], negated(u[1])}};
  if (n == 4) return first_stage_of_four(u);
  const int r = radices[0], m = n / r;
  std::vector<ComplexBlock<V>> parts;
  for (int rho = 0; rho < r; ++rho) {
    std::vector<V> w(m);
    for (int tau = 0; tau < m / 2; ++tau) {
      w[2 * tau] = u[2 * (rho + r * tau)];
      w[2 * tau + 1] = u[2 * (r * (tau + 1) - rho) - 1];
    }
    parts.push_back(first_stage(w, radices.subspan(1)));
  }
  ComplexBlock<V> z(n / 2);
  for (int kappa = 0; kappa < m / 2; ++kappa) {
    ComplexBlock<V> column;
    std::vector<Rotation<Number>> by;
    for (int rho = 0; rho < r; ++rho) column.push_back(parts[rho][kappa]);
    for (int k = 1; k < r; ++k) by.push_back(rotation_by_turn(k * (2 * kappa + 1), 2 * n));
    const ComplexBlock<V> y = skew_sum(column, by, UpperHalf::kConjugated);
    for (int a = 0; a < r / 2; ++a) {
      z[kappa + m * a] = y[a];
      z[m - 1 - kappa + m * a] = y[r - 1 - a];
    }
  }
  return z;
}

}  // namespace dct4
