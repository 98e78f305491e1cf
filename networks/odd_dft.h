// Transforms of real sequences at the frequencies between the bins: RealDft::odd().
#pragma once

#include <utility>
#include <vector>

#include "networks/complex_dft.h"
#include "networks/one_sample.h"
#include "networks/real_dft.h"

namespace networks {

template <class V>
class OddDft {
 public:
  using C = Complex<V>;

  OddDft(RealDft<V>& real_dft, int e) : dft_(real_dft), e_(e) {}

  Bins<V> run(const Tree& tree, const std::vector<V>& x) {
    switch (tree.kind) {
      case Tree::Kind::kAlternating:
        return alternating(tree.first(), x);
      case Tree::Kind::kFolded:
      case Tree::Kind::kFoldedComplex:
        return folded(tree, x);
      case Tree::Kind::kByData:
        return run(tree.parts[2], x);
      case Tree::Kind::kProductsFolded:
        return alternating(tree, x);
      case Tree::Kind::kCooleyTukey:
        return cooley_tukey(tree, x);
      case Tree::Kind::kPrimeFactor:
        return tree.length % 2 == 1 ? alternating(tree, x) : prime_factor(tree, x);
      case Tree::Kind::kLeaf:
        if (tree.form == "n") return by_definition(x);
        if (tree.length == 2) return {folded_sample(x[0], x[1])};
        if (tree.length == 4) return folded(parse_tree("Z(2)"), x);
        return alternating(tree, x);
      default:
        throw std::invalid_argument("no transform between the bins: " + to_string(tree));
    }
  }

 private:
  // Odd n: with 2k + 1 = n + 2m, the sign (-1)^j is left of exp(-pi i e j n / n).
  Bins<V> alternating(const Tree& tree, std::vector<V> x) {
    const int n = tree.length;
    for (int j = 1; j < n; j += 2) x[j] = -x[j];
    const Bins<V> bins = dft_.real(tree, x, e_);
    Bins<V> y((n + 1) / 2);
    for (int m = 0; m <= n / 2; ++m) RealDft<V>::set_odd(y, n, n + 2 * m, bins[m]);
    return y;
  }

  // exp(-pi i e (2k + 1) / 2) is (-i)^e at every second frequency, those that are 1 modulo 4; the
  // others are conjugates.
  C folded_sample(const V& lower, const V& upper) const {
    return {lower, (e_ % 4 + 4) % 4 == 1 ? -upper : upper};
  }

  Bins<V> folded(const Tree& tree, const std::vector<V>& x) {
    const Tree& half = tree.first();
    const int h = half.length, n = 2 * h;
    std::vector<C> z;
    for (int j = 0; j < h; ++j) z.push_back(folded_sample(x[j], x[j + h]));
    std::vector<C> y;
    if (tree.kind == Tree::Kind::kFoldedComplex) {
      OneSample<V> form;
      y = ComplexDft(form).run(half, dft_.rotated(z, Turn(1, 4), e_), e_);
    } else {
      y = dft_.skewed(half, z, Turn(1, 4), e_);
    }
    Bins<V> bins(h);
    for (int k = 0; k < h; ++k) RealDft<V>::set_odd(bins, n, 4 * k + 1, y[k]);
    return bins;
  }

  // Of columns of odd length a, the row of their last, real bin lies between the bins again.
  Bins<V> cooley_tukey(const Tree& tree, const std::vector<V>& x) {
    const int a = tree.first().length, b = tree.second().length, n = a * b;
    std::vector<Bins<V>> columns;
    for (int j2 = 0; j2 < b; ++j2) {
      std::vector<V> column;
      for (int j1 = 0; j1 < a; ++j1) column.push_back(x[b * j1 + j2]);
      columns.push_back(run(tree.first(), column));
    }
    Bins<V> bins((n + 1) / 2);
    for (int k1 = 0; k1 < a / 2; ++k1) {
      const auto row = dft_.skewed(tree.second(), RealDft<V>::complex_row(columns, k1),
                                   Turn(2 * k1 + 1, 2 * a), e_);
      for (int k2 = 0; k2 < b; ++k2) {
        RealDft<V>::set_odd(bins, n, 2 * k1 + 1 + 2 * a * k2, row[k2]);
      }
    }
    if (a % 2 == 0) return bins;
    const Bins<V> last = run(tree.second(), RealDft<V>::real_row(columns, a / 2));
    for (std::size_t k2 = 0; k2 < last.size(); ++k2) {
      RealDft<V>::set_odd(bins, n, a * static_cast<int>(2 * k2 + 1), last[k2]);
    }
    return bins;
  }

  // One length even. Index j = b j1 + a j2 counts on behind n, with the sign turned.
  Bins<V> prime_factor(const Tree& tree, const std::vector<V>& x) {
    const int a = tree.first().length, b = tree.second().length, n = a * b;
    std::vector<Bins<V>> columns;
    for (int j2 = 0; j2 < b; ++j2) {
      std::vector<V> column;
      for (int j1 = 0; j1 < a; ++j1) {
        const int j = b * j1 + a * j2;
        column.push_back(j / n % 2 == 0 ? x[j % n] : -x[j % n]);
      }
      columns.push_back(run(tree.first(), column));
    }
    Bins<V> bins((n + 1) / 2);
    // Frequencies f1 modulo 2a and f2 modulo 2b are one modulo 2n.
    const auto set = [&](int f1, int f2, const C& value) {
      int f = f1;
      while ((f - f2) % (2 * b) != 0) f += 2 * a;
      RealDft<V>::set_odd(bins, n, f, value);
    };
    for (int f1 = 1; f1 < a; f1 += 2) {
      std::vector<C> row = RealDft<V>::complex_row(columns, (f1 - 1) / 2);
      if (b % 2 == 0) {
        const auto y = dft_.skewed(tree.second(), row, Turn(1, 2), e_);
        for (int k2 = 0; k2 < b; ++k2) set(f1, 2 * k2 + 1, y[k2]);
      } else {
        for (int j2 = 1; j2 < b; j2 += 2) row[j2] = -row[j2];
        const auto y = dft_.complex(tree.second(), row, e_);
        for (int m = 0; m < b; ++m) set(f1, b + 2 * m, y[m]);
      }
    }
    if (a % 2 == 1) {
      const Bins<V> last = run(tree.second(), RealDft<V>::real_row(columns, a / 2));
      for (std::size_t k2 = 0; k2 < last.size(); ++k2) {
        set(a, static_cast<int>(2 * k2 + 1), last[k2]);
      }
    }
    return bins;
  }

  // Length 3: the samples rotated, then the complex butterfly, without the parts that nobody wants.
  Bins<V> by_definition(const std::vector<V>& x) const {
    const Number half = gen::ratio(1, 2), root = gen::sin_of_turn(1, 3);
    const V re = half * x[1] - half * x[2];
    const V q1 = root * x[1], q2 = root * x[2];
    const C first = {x[0] + re, (e_ % 6 + 6) % 6 == 1 ? -(q1 + q2) : q1 + q2};
    return {first, {(x[0] - half * re) + root * (q2 - q1), {}}};
  }

  RealDft<V>& dft_;
  const int e_;
};

template <class V>
Bins<V> RealDft<V>::odd(const Tree& tree, const std::vector<V>& x, int e) {
  return OddDft<V>(*this, e).run(tree, x);
}

}  // namespace networks
