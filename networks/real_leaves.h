// DFTs of real sequences of length 2, 3, 4, 5, 7 and 11: the leaves of networks on real data.
//
// `V` is a real value type: +, -, unary -, Number * V. A transform of length n returns the bins 0
// to n / 2; the imaginary parts of bins 0 and n / 2 don't exist and are never read. The other bins
// are conjugates of these.
#pragma once

#include <vector>

#include "networks/complex.h"

namespace networks {

template <class V>
using Bins = std::vector<Complex<V>>;

// The parts of a spectrum that exist, in order: re, im of every bin, real bins without im.
template <class V, class IsReal>
std::vector<V> parts_of(const Bins<V>& bins, IsReal is_real) {
  std::vector<V> parts;
  for (std::size_t k = 0; k < bins.size(); ++k) {
    parts.push_back(bins[k].re);
    if (!is_real(static_cast<int>(k))) parts.push_back(bins[k].im);
  }
  return parts;
}

template <class V>
Bins<V> real_dft2(const std::vector<V>& x) {
  return {{x[0] + x[1], {}}, {x[0] - x[1], {}}};
}

// 4 additions, 2 multiplications.
template <class V>
Bins<V> real_dft3(const std::vector<V>& x) {
  const V sum = x[1] + x[2];
  return {{x[0] + sum, {}},
          {x[0] - gen::ratio(1, 2) * sum, -(gen::sin_of_turn(1, 3) * (x[1] - x[2]))}};
}

template <class V>
Bins<V> real_dft4(const std::vector<V>& x) {
  const V a = x[0] + x[2], c = x[1] + x[3];
  return {{a + c, {}}, {x[0] - x[2], -(x[1] - x[3])}, {a - c, {}}};
}

// Whether X[0] of an odd length adds x[0] to the first pair or to the sum of all pairs.
enum class SumOrder { kFirstSampleFirst, kFirstSampleLast };

// Direct symmetric form: 12 additions, 8 multiplications.
template <class V>
Bins<V> real_dft5(const std::vector<V>& x, SumOrder order = SumOrder::kFirstSampleFirst) {
  const Number c1 = gen::cos_of_turn(1, 5), c2 = -gen::cos_of_turn(2, 5);
  const Number s1 = gen::sin_of_turn(1, 5), s2 = gen::sin_of_turn(2, 5);
  const V a = x[1] + x[4], b = x[3] + x[2], f = x[1] - x[4], e = x[3] - x[2];
  const bool first = order == SumOrder::kFirstSampleFirst;
  return {{first ? (x[0] + a) + b : (a + b) + x[0], {}},
          {(c1 * a + x[0]) - c2 * b, -(s1 * f - s2 * e)},
          {(x[0] - c2 * a) + c1 * b, -(s2 * f + s1 * e)}};
}

// With half sum and half difference of the cosines: 12 additions, 6 multiplications.
template <class V>
Bins<V> real_dft5_short(const std::vector<V>& x) {
  const Number half_difference =
      gen::ratio(1, 2) * gen::difference(gen::cos_of_turn(1, 5), gen::cos_of_turn(2, 5));
  const Number s1 = gen::sin_of_turn(1, 5), s2 = gen::sin_of_turn(2, 5);
  const V t1 = x[1] + x[4], t2 = x[2] + x[3], d1 = x[1] - x[4], d2 = x[2] - x[3];
  const V s = t1 + t2;
  const V m = x[0] - gen::ratio(1, 4) * s, h = half_difference * (t1 - t2);
  return {{x[0] + s, {}}, {m + h, -(s1 * d1 + s2 * d2)}, {m - h, -(s2 * d1 - s1 * d2)}};
}

// Cosine parts and sine parts of an odd length from the pair sums a[k] and differences b[k],
// k = 1..h: every cosine and sine is a product of its own.
template <class V>
struct SymmetricParts {
  V sum;                        // x[0] and all a[k]
  std::vector<V> cosine, sine;  // [j - 1] for j = 1..h
};

template <class V>
SymmetricParts<V> symmetric_parts(int n, const V& x0, const std::vector<V>& a,
                                  const std::vector<V>& b,
                                  SumOrder order = SumOrder::kFirstSampleFirst) {
  const int h = (n - 1) / 2;
  const bool first = order == SumOrder::kFirstSampleFirst;
  SymmetricParts<V> parts{first ? x0 + a[0] : a[0], {}, {}};
  for (int k = 1; k < h; ++k) parts.sum = parts.sum + a[k];
  if (!first) parts.sum = parts.sum + x0;
  for (int j = 1; j <= h; ++j) {
    V cosine = x0 + gen::cos_of_turn(j, n) * a[0];
    V sine = gen::sin_of_turn(j, n) * b[0];
    for (int k = 2; k <= h; ++k) {
      cosine = cosine + gen::cos_of_turn(j * k % n, n) * a[k - 1];
      sine = sine + gen::sin_of_turn(j * k % n, n) * b[k - 1];
    }
    parts.cosine.push_back(cosine);
    parts.sine.push_back(sine);
  }
  return parts;
}

// Direct symmetric form of any odd prime: (n^2 - 1) / 2 additions, (n - 1)^2 / 2 multiplications.
template <class V>
Bins<V> real_dft_direct(const std::vector<V>& x, SumOrder order = SumOrder::kFirstSampleFirst) {
  const int n = static_cast<int>(x.size());
  std::vector<V> a, b;
  for (int k = 1; k <= (n - 1) / 2; ++k) {
    a.push_back(x[k] + x[n - k]);
    b.push_back(-(x[k] - x[n - k]));
  }
  const SymmetricParts<V> parts = symmetric_parts(n, x[0], a, b, order);
  Bins<V> bins = {{parts.sum, {}}};
  for (std::size_t j = 0; j < a.size(); ++j) bins.push_back({parts.cosine[j], parts.sine[j]});
  return bins;
}

}  // namespace networks
