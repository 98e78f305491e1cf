// Rader's form on a real sequence: RealDft::rader().
#pragma once

#include <vector>

#include "networks/real_dft.h"

namespace networks {

// a * constant, four multiplications.
template <class V>
Complex<V> times(const ComplexNumber& constant, const Complex<V>& a) {
  return {constant.re * a.re - constant.im * a.im, constant.re * a.im + constant.im * a.re};
}

template <class V>
Bins<V> RealDft<V>::rader(const RaderRecipe& recipe, const std::vector<V>& x) {
  const int p = recipe.prime(), n = p - 1, half = n / 2;
  const std::vector<int> powers = root_powers(p);
  std::vector<V> permuted;
  for (int m = 0; m < n; ++m) permuted.push_back(x[powers[m]]);
  const Bins<V> a = real(recipe.input, permuted);

  // Even bins belong to the cosine part of the kernel, odd ones, without their factor i, to the
  // sine part. Those between 0 and n / 2 stand for their conjugates, too.
  const std::vector<ComplexNumber> spectrum = rader_spectrum(p, recipe.turn);
  const auto constant = [&](int k) {
    const ComplexNumber& s = spectrum[k];
    return k % 2 == 0 ? s : ComplexNumber{s.im, -s.re};
  };
  Bins<V> even, odd_bins;
  for (int k = 0; k <= half; ++k) {
    Bins<V>& bins = k % 2 == 0 ? even : odd_bins;
    if (k == 0) {
      bins.push_back({x[0] + constant(k).re * a[k].re, {}});
    } else if (k == half) {
      bins.push_back({constant(k).re * a[k].re, {}});
    } else {
      const ComplexNumber s = constant(k);
      bins.push_back(times(ComplexNumber{Number(2) * s.re, Number(2) * s.im}, a[k]));
    }
  }
  const auto even_is_real = [half](int k) { return k == 0 || 2 * k == half; };
  const auto odd_is_real = [half](int k) { return 2 * k + 1 == half; };
  const RealStyle odd_style = style_.mirrored(recipe.odd_diagonal_reversed);
  const std::vector<V> cosine = run_mirrored(
      half,
      [&](const std::vector<gen::Expr>& in) {
        return parts_of(RealDft<gen::Expr>(table_, style_.mirrored()).real(recipe.even, in),
                        even_is_real);
      },
      parts_of(even, even_is_real));
  const std::vector<V> sine = run_mirrored(
      half,
      [&](const std::vector<gen::Expr>& in) {
        return parts_of(RealDft<gen::Expr>(table_, odd_style).odd(recipe.odd, in), odd_is_real);
      },
      parts_of(odd_bins, odd_is_real));

  Bins<V> bins(half + 1);
  bins[0].re = x[0] + a[0].re;
  for (int l = 0; l < half; ++l) {
    const int k = powers[((-l - recipe.turn) % n + n) % n];
    set_bin(bins, p, k, {cosine[l], sine[l]});
  }
  return bins;
}

}  // namespace networks
