// DFTs of real sequences by decomposition trees, and the transforms that turn up inside them:
//
//   real(x)        X[k] = sum of x[j] exp(-2 pi i e j k / n), bins 0 to n / 2
//   complex(z)     the same of complex data, all bins
//   odd(x)         Y[k] = sum of x[j] exp(-pi i e j (2k + 1) / n), the frequencies between the
//   bins,
//                  k < (n + 1) / 2; the last one of an odd n is real
//   skewed(z, u)   Y[k] = sum of z[j] exp(-2 pi i e j (k + u) / n) of complex data, all k
//
// e is the root's exponent, coprime to the length (for odd(), to twice the length). Values that
// come in conjugate pairs are computed once. Leaves of the trees have the forms
//
//   2 3 4 5 7 11   as in real_leaves.h
//   5w, 7r         on a real sequence the short form of 5 and Rader's form of 7; on a part of a
//                  complex one as 5 and 7
//   13, 11r, ...   Rader's form, by the recipe that the table gives for that name
//   4s             for skewed(): radix-2 steps with one rotation each
//   3n             for odd(): by definition
#pragma once

#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "networks/complex_dft.h"
#include "networks/mirror.h"
#include "networks/one_sample.h"
#include "networks/rader_table.h"
#include "networks/real_leaves.h"
#include "networks/tree.h"
#include "networks/turn.h"

namespace networks {

// What families do differently.
struct RealStyle {
  SumOrder sum_order = SumOrder::kFirstSampleFirst;
  // Complex data as complex values; else real and imaginary parts by themselves.
  bool complex_as_a_whole = false;
  Diagonal diagonal = Diagonal::kProductsFirst;
  Diagonal mirrored_diagonal = Diagonal::kProductsFirst;  // in networks made to be mirrored

  RealStyle mirrored(bool reversed = false) const {
    RealStyle style = *this;
    if (!reversed) std::swap(style.diagonal, style.mirrored_diagonal);
    return style;
  }
};

template <class V>
class OddDft;

template <class V>
class RealDft {
 public:
  using C = Complex<V>;

  explicit RealDft(const RaderTable& table, const RealStyle& style = {})
      : table_(table), style_(style) {}

  Bins<V> real(const Tree& tree, const std::vector<V>& x, int e = 1) {
    return real(tree, x, e, /*is_part=*/false);
  }

  std::vector<C> complex(const Tree& tree, const std::vector<C>& z, int e = 1) {
    if (!style_.complex_as_a_whole) return complex_by_parts(tree, z, e);
    OneSample<V> form(style_.diagonal);
    const auto leaf = [this](const Tree& leaf, const std::vector<C>& x) {
      if (leaf.kind == Tree::Kind::kMirrored) return mirrored_complex(leaf.first(), x);
      return leaf.length <= 5 ? short_dft(x) : complex_by_parts(leaf, x, 1);
    };
    return ComplexDft<OneSample<V>>(form, leaf).run(tree, z, e);
  }

  // Two additions an output more than two real transforms.
  std::vector<C> complex_by_parts(const Tree& tree, const std::vector<C>& z, int e) {
    const int n = tree.length;
    std::vector<V> re, im;
    for (const C& sample : z) {
      re.push_back(sample.re);
      im.push_back(sample.im);
    }
    const Bins<V> a = real(tree, re, e, /*is_part=*/true);
    const Bins<V> b = real(tree, im, e, /*is_part=*/true);
    std::vector<C> y(n);
    for (int k = 0; k <= n / 2; ++k) {
      if (k == 0 || 2 * k == n) {
        y[k] = {a[k].re, b[k].re};
      } else {
        y[k] = {a[k].re - b[k].im, b[k].re + a[k].im};
        y[n - k] = {a[k].re + b[k].im, b[k].re - a[k].im};
      }
    }
    return y;
  }

  // One rotation a sample, then complex().
  std::vector<C> skewed(const Tree& tree, const std::vector<C>& z, const Turn& u, int e = 1) {
    if (tree.form == "s") return skewed_by_halves(z, u, e);
    return complex(tree, rotated(z, u, e), e);
  }

  // In odd_dft.h.
  Bins<V> odd(const Tree& tree, const std::vector<V>& x, int e = 1);

 private:
  friend class OddDft<V>;

  std::vector<C> rotated(std::vector<C> z, const Turn& u, int e) const {
    const long n = static_cast<long>(z.size());
    for (long j = 1; j < n; ++j) {
      z[j] = rotate(z[j], Turn(-e * j * u.numerator, n * u.denominator), style_.diagonal);
    }
    return z;
  }

  static std::vector<C> skewed_by_halves(const std::vector<C>& z, const Turn& u, int e) {
    const std::size_t half = z.size() / 2;
    if (half == 0) return z;
    std::vector<C> sums, differences;
    for (std::size_t j = 0; j < half; ++j) {
      const C upper = rotate(z[j + half], Turn(-e * u.numerator, 2 * u.denominator));
      sums.push_back(z[j] + upper);
      differences.push_back(z[j] - upper);
    }
    sums = skewed_by_halves(sums, Turn(u.numerator, 2 * u.denominator), e);
    differences =
        skewed_by_halves(differences, Turn(u.numerator + u.denominator, 2 * u.denominator), e);
    std::vector<C> y;
    for (std::size_t k = 0; k < half; ++k) y.insert(y.end(), {sums[k], differences[k]});
    return y;
  }

  // `is_part` tells that x holds the real or the imaginary parts of a complex sequence.
  Bins<V> real(const Tree& tree, const std::vector<V>& x, int e, bool is_part) {
    switch (tree.kind) {
      case Tree::Kind::kLeaf:
        return leaf(tree, x, e, is_part);
      case Tree::Kind::kCooleyTukey:
        return cooley_tukey(tree, x, e, is_part);
      case Tree::Kind::kPrimeFactor:
        return prime_factor(tree, x, e, is_part);
      case Tree::Kind::kSplit:
        return split(tree, x, e);
      case Tree::Kind::kByData:
        return real(tree.first(), x, e, is_part);
      case Tree::Kind::kProductsFolded:
        return with_products_folded(tree.first(), x, e);
      default:
        throw std::invalid_argument("no transform at the bins: " + to_string(tree));
    }
  }

  // Another root only renames the bins; those above n / 2 are conjugates.
  Bins<V> leaf(const Tree& tree, const std::vector<V>& x, int e, bool is_part) {
    const int n = tree.length;
    const Bins<V> y = natural_leaf(tree, x, is_part);
    Bins<V> bins(n / 2 + 1);
    for (int k = 0; k <= n / 2; ++k) set_bin(bins, n, k, bin(y, n, e * k));
    return bins;
  }

  Bins<V> natural_leaf(const Tree& tree, const std::vector<V>& x, bool is_part) {
    if (tree.form == "w" && !is_part) return real_dft5_short(x);
    if (tree.form == "w" || tree.form == "s" || tree.form == "n") {
      return natural_leaf({Tree::Kind::kLeaf, tree.length, "", {}}, x, is_part);
    }
    const bool plain_here = tree.form == "r" && tree.length == 7 && is_part;
    const RaderRecipe* recipe = plain_here ? nullptr : table_.find(tree);
    if (recipe != nullptr) return rader(*recipe, x);
    switch (tree.length) {
      case 2:
        return real_dft2(x);
      case 3:
        return real_dft3(x);
      case 4:
        return real_dft4(x);
      case 5:
        return real_dft5(x, style_.sum_order);
      case 7:
      case 11:
        return real_dft_direct(x, style_.sum_order);
    }
    throw std::invalid_argument("no form of " + to_string(tree));
  }

  // In graph_network.h.
  std::vector<C> mirrored_complex(const Tree& tree, const std::vector<C>& z);
  Bins<V> with_products_folded(const Tree& tree, const std::vector<V>& x, int e);

  // In rader.h.
  Bins<V> rader(const RaderRecipe& recipe, const std::vector<V>& x);

  // The columns of x, each of them transformed.
  template <class Index>
  std::vector<Bins<V>> columns(const Tree& tree, const std::vector<V>& x, int e, bool is_part,
                               Index index) {
    std::vector<Bins<V>> result;
    for (int j2 = 0; j2 < tree.second().length; ++j2) {
      std::vector<V> column;
      for (int j1 = 0; j1 < tree.first().length; ++j1) column.push_back(x[index(j1, j2)]);
      result.push_back(real(tree.first(), column, e, is_part));
    }
    return result;
  }

  static std::vector<V> real_row(const std::vector<Bins<V>>& columns, int k1) {
    std::vector<V> row;
    for (const Bins<V>& column : columns) row.push_back(column[k1].re);
    return row;
  }

  static std::vector<C> complex_row(const std::vector<Bins<V>>& columns, int k1) {
    std::vector<C> row;
    for (const Bins<V>& column : columns) row.push_back(column[k1]);
    return row;
  }

  // Row 0 is real, row a / 2 lies between the bins, the others are skewed.
  Bins<V> cooley_tukey(const Tree& tree, const std::vector<V>& x, int e, bool is_part) {
    const int a = tree.first().length, b = tree.second().length, n = a * b;
    const auto stage = columns(tree, x, e, is_part, [&](int j1, int j2) { return b * j1 + j2; });
    Bins<V> bins(n / 2 + 1);
    const Bins<V> row0 = real(tree.second(), real_row(stage, 0), e, is_part);
    for (int k2 = 0; k2 <= b / 2; ++k2) set_bin(bins, n, a * k2, row0[k2]);
    for (int k1 = 1; 2 * k1 < a; ++k1) {
      const auto row = skewed(tree.second(), complex_row(stage, k1), Turn(k1, a), e);
      for (int k2 = 0; k2 < b; ++k2) set_bin(bins, n, k1 + a * k2, row[k2]);
    }
    if (a % 2 == 0) {
      const Bins<V> middle = odd(tree.second(), real_row(stage, a / 2), e);
      for (int k2 = 0; k2 < (b + 1) / 2; ++k2) set_bin(bins, n, a / 2 + a * k2, middle[k2]);
    }
    return bins;
  }

  // Rows 0 and a / 2 are real.
  Bins<V> prime_factor(const Tree& tree, const std::vector<V>& x, int e, bool is_part) {
    const int a = tree.first().length, b = tree.second().length, n = a * b;
    const auto index = [&](int i1, int i2) { return (b * i1 + a * i2) % n; };
    const auto stage = columns(tree, x, e * b, is_part, index);
    Bins<V> bins(n / 2 + 1);
    for (int k1 = 0; 2 * k1 <= a; ++k1) {
      if (k1 == 0 || 2 * k1 == a) {
        const Bins<V> row = real(tree.second(), real_row(stage, k1), e * a, is_part);
        for (int k2 = 0; k2 <= b / 2; ++k2) set_bin(bins, n, index(k1, k2), row[k2]);
      } else {
        const auto row = complex(tree.second(), complex_row(stage, k1), e * a);
        for (int k2 = 0; k2 < b; ++k2) set_bin(bins, n, index(k1, k2), row[k2]);
      }
    }
    return bins;
  }

  // The sums of the halves give the even bins, the differences the odd ones.
  Bins<V> split(const Tree& tree, const std::vector<V>& x, int e) {
    const int n = tree.length, half = n / 2;
    std::vector<V> sums, differences;
    for (int j = 0; j < half; ++j) {
      sums.push_back(x[j] + x[j + half]);
      differences.push_back(x[j] - x[j + half]);
    }
    const Bins<V> even = real(tree.first(), sums, e), odd_bins = odd(tree.second(), differences, e);
    Bins<V> bins(n / 2 + 1);
    for (int k = 0; k <= half / 2; ++k) set_bin(bins, n, 2 * k, even[k]);
    for (int k = 0; k < (half + 1) / 2; ++k) set_bin(bins, n, 2 * k + 1, odd_bins[k]);
    return bins;
  }

  // Bin k modulo n of a spectrum of which the bins up to n / 2 are there.
  static C bin(const Bins<V>& bins, int n, int k) {
    k = (k % n + n) % n;
    if (2 * k <= n) return bins[k];
    return {bins[n - k].re, -bins[n - k].im};
  }

  static void set_bin(Bins<V>& bins, int n, int k, const C& value) {
    k %= n;
    if (k == 0 || 2 * k == n) {
      bins[k].re = value.re;
    } else if (2 * k < n) {
      bins[k] = value;
    } else {
      bins[n - k] = {value.re, -value.im};
    }
  }

  // The same for the frequencies f = 2k + 1 between the bins, in 2n-th of a turn.
  static void set_odd(Bins<V>& bins, int n, int f, const C& value) {
    f %= 2 * n;
    if (f == n) {
      bins[(f - 1) / 2].re = value.re;
    } else if (f < n) {
      bins[(f - 1) / 2] = value;
    } else {
      bins[(2 * n - f - 1) / 2] = {value.re, -value.im};
    }
  }

  const RaderTable& table_;
  const RealStyle style_;
};

}  // namespace networks

#include "networks/graph_network.h"
#include "networks/odd_dft.h"
#include "networks/rader.h"
