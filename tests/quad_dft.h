// The complex DFT by its definition, in quad precision.
#pragma once

#include <quadmath.h>

#include <random>
#include <vector>

#include "networks/complex.h"

using Block = std::vector<networks::Complex<__float128>>;

// exp(-2 pi i k / n).
inline Block::value_type unit_root(long k, long n) {
  const __float128 angle = -2 * M_PIq * (k % n) / n;
  return {cosq(angle), sinq(angle)};
}

inline Block::value_type operator*(const Block::value_type& a, const Block::value_type& b) {
  return {a.re * b.re - a.im * b.im, a.re * b.im + a.im * b.re};
}

// With root exp(-2 pi i exponent / n).
inline Block direct_dft(const Block& x, int exponent) {
  const int n = static_cast<int>(x.size());
  Block y(n), roots;
  for (int k = 0; k < n; ++k) roots.push_back(unit_root(exponent * k, n));
  for (int k = 0; k < n; ++k) {
    for (int j = 0; j < n; ++j) y[k] = y[k] + x[j] * roots[j * k % n];
  }
  return y;
}

inline Block random_block(int n) {
  std::mt19937 random(n);
  std::uniform_real_distribution<float> uniform(-1, 1);
  Block x(n);
  for (auto& sample : x) sample = {uniform(random), uniform(random)};
  return x;
}
