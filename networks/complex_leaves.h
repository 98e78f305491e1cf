// Complex DFTs of prime length inside composite ones.
//
// Networks on real data serve complex values as well, as every operation treats both parts alike:
// what they give as a real and an imaginary part is a cosine sum P and, negated, a sine sum Q of
// complex samples, and only the last step joins them, X[k] = P[k] - i Q[k].
#pragma once

#include <vector>

#include "networks/real_dft.h"
#include "networks/short_dft.h"

namespace networks {

// Direct symmetric form of an odd prime; the differences are turned before they are multiplied.
template <class C>
std::vector<C> direct_dft(const std::vector<C>& x) {
  const int n = static_cast<int>(x.size());
  std::vector<C> a, b;
  for (int k = 1; k <= (n - 1) / 2; ++k) {
    a.push_back(x[k] + x[n - k]);
    b.push_back(minus_i(x[k] - x[n - k]));
  }
  const SymmetricParts<C> parts = symmetric_parts(n, x[0], a, b);
  std::vector<C> y(n, parts.sum);
  for (int j = 1; j <= (n - 1) / 2; ++j) {
    y[j] = parts.cosine[j - 1] + parts.sine[j - 1];
    y[n - j] = parts.cosine[j - 1] - parts.sine[j - 1];
  }
  return y;
}

// The bins of a real network as complex samples.
template <class C>
std::vector<C> join_bins(const Bins<C>& bins, int n) {
  std::vector<C> y(n);
  for (int k = 0; k <= n / 2; ++k) {
    y[k] = bins[k].re;
    if (k == 0 || 2 * k == n) continue;
    const C turned = minus_i(bins[k].im);
    y[k] = bins[k].re - turned;
    y[n - k] = bins[k].re + turned;
  }
  return y;
}

// The leaf of a complex tree: short up to 5, direct at 7 and 11, else in Rader's form on both
// parts.
template <class C>
std::vector<C> complex_leaf(const RaderTable& table, const Tree& leaf, const std::vector<C>& x) {
  if (table.find(leaf) != nullptr) {
    return join_bins(RealDft<C>(table).real(leaf, x), leaf.length);
  }
  return leaf.length <= 5 ? short_dft(x) : direct_dft(x);
}

}  // namespace networks
