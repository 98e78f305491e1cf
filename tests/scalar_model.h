// Transforms written out a second time, one scalar after the other, in the order of operations that
// is laid down for them: what kernels have to give bit for bit.
#pragma once

#include <quadmath.h>

#include <algorithm>
#include <vector>

#include "networks/tree.h"

namespace scalar_model {

// A number of type T. Products, and sums with a product in them, are of type Wide until narrow().
// (A sum or product of floats that is rounded to double first comes out as if rounded once.)
template <class T, class Wide = T>
struct Real {
  double v = 0;
  bool wide = false;

  friend Real operator+(Real a, Real b) { return sum(a.v + b.v, a.wide || b.wide); }
  friend Real operator-(Real a, Real b) { return sum(a.v - b.v, a.wide || b.wide); }
  friend Real operator*(__float128 c, Real a) {
    return {static_cast<Wide>(static_cast<Wide>(c) * a.v), true};
  }
  friend Real narrow(Real a) { return {static_cast<T>(a.v), false}; }
  friend bool operator==(Real a, Real b) { return a.v == b.v; }

 private:
  static Real sum(double v, bool wide) {
    return {wide ? static_cast<Wide>(v) : static_cast<T>(v), wide};
  }
};

template <class R>
struct Sample {
  R re, im;

  friend Sample operator+(Sample a, Sample b) { return {a.re + b.re, a.im + b.im}; }
  friend Sample operator-(Sample a, Sample b) { return {a.re - b.re, a.im - b.im}; }
  friend Sample operator*(__float128 c, Sample a) { return {c * a.re, c * a.im}; }
  friend Sample narrow(Sample a) { return {narrow(a.re), narrow(a.im)}; }
};

// Of k / n of a turn.
inline __float128 cosine(long k, long n) {
  k = (k % n + n) % n;
  if (4 * k % n == 0) return k == 0 ? 1 : 2 * k == n ? -1 : 0;
  return cosq(2 * M_PIq * k / n);
}
inline __float128 sine(long k, long n) { return cosine(4 * k - n, 4 * n); }

// (re, im) times exp(2 pi i k / n).
template <class R>
Sample<R> rotate(Sample<R> z, long k, long n) {
  const __float128 c = cosine(k, n), s = sine(k, n);
  return {c * z.re - s * z.im, s * z.re + c * z.im};
}

// Cosine and sine sums of a sequence: X[k] = p[k] - i q[k], k = 0..n / 2, X[n - k] = p[k] + i q[k].
template <class V>
struct Sums {
  std::vector<V> p, q;
};

enum class Form {
  kFirstSampleFirst,
  kFirstSampleLast,  // x[0] is added at the end of X[0]
  kShortFive         // length 5 has fewer products
};

// Lengths 2, 4, and odd primes by their symmetric sums, in ascending order.
template <class V>
Sums<V> leaf(const std::vector<V>& x, Form form) {
  const int n = static_cast<int>(x.size()), h = (n - 1) / 2;
  if (n == 2) return {{x[0] + x[1], x[0] - x[1]}, {V(), V()}};
  if (n == 4) {
    const V a = x[0] + x[2], c = x[1] + x[3];
    return {{a + c, x[0] - x[2], a - c}, {V(), x[1] - x[3], V()}};
  }
  std::vector<V> a(1), b(1);
  for (int k = 1; k <= h; ++k) {
    a.push_back(x[k] + x[n - k]);
    b.push_back(x[k] - x[n - k]);
  }
  if (n == 5 && form == Form::kShortFive) {
    const V s = a[1] + a[2], m = x[0] - 0.25Q * s, d = sqrtq(5) / 4 * (a[1] - a[2]);
    return {{x[0] + s, m + d, m - d},
            {V(), sine(1, 5) * b[1] + sine(2, 5) * b[2], sine(2, 5) * b[1] - sine(1, 5) * b[2]}};
  }
  const bool is_last = form == Form::kFirstSampleLast;
  V sum = is_last ? a[1] : x[0] + a[1];
  for (int k = 2; k <= h; ++k) sum = sum + a[k];
  if (is_last) sum = sum + x[0];
  Sums<V> y = {{sum}, {V()}};
  for (int j = 1; j <= h; ++j) {
    V p = x[0] + cosine(j, n) * a[1], q = sine(j, n) * b[1];
    for (int k = 2; k <= h; ++k) {
      p = p + cosine(j * k, n) * a[k];
      q = q + sine(j * k, n) * b[k];
    }
    y.p.push_back(p);
    y.q.push_back(q);
  }
  return y;
}

// X[k] of any k.
template <class R>
Sample<R> join(const Sums<Sample<R>>& y, int k, int n) {
  k = (k % n + n) % n;
  const bool upper = 2 * k > n;
  const Sample<R> p = narrow(y.p[upper ? n - k : k]), q = narrow(y.q[upper ? n - k : k]);
  if (upper) return {p.re - q.im, p.im + q.re};
  return {p.re + q.im, p.im - q.re};
}

using networks::Tree;

// Sees nothing.
inline constexpr auto kNobody = [](const auto&...) {};

// A block of complex samples by its tree, with root exp(-2 pi i e / length). `visit(tree, x, y)`
// sees what goes into every block and what comes out.
template <class R, class Visit>
std::vector<Sample<R>> whole(const Tree& tree, const std::vector<Sample<R>>& x, int e,
                             Visit visit) {
  const int n = tree.length;
  std::vector<Sample<R>> y(n);
  if (tree.kind == Tree::Kind::kLeaf) {
    const Sums<Sample<R>> sums = leaf(x, Form::kFirstSampleFirst);
    for (int k = 0; k < n; ++k) y[k] = join(sums, e * k, n);
    visit(tree, x, y);
    return y;
  }
  const int a = tree.first().length, b = tree.second().length;
  const bool twiddles = tree.kind == Tree::Kind::kCooleyTukey;
  std::vector<std::vector<Sample<R>>> rows(a);
  for (int j2 = 0; j2 < b; ++j2) {
    std::vector<Sample<R>> column;
    for (int j1 = 0; j1 < a; ++j1) column.push_back(x[(b * j1 + (twiddles ? 1 : a) * j2) % n]);
    column = whole(tree.first(), column, twiddles ? e : e * b, visit);
    for (int k1 = 0; k1 < a; ++k1) {
      rows[k1].push_back(twiddles ? narrow(rotate(column[k1], -e * j2 * k1, n)) : column[k1]);
    }
  }
  for (int k1 = 0; k1 < a; ++k1) {
    const auto row = whole(tree.second(), rows[k1], twiddles ? e : e * a, visit);
    for (int k2 = 0; k2 < b; ++k2) y[twiddles ? k1 + a * k2 : (b * k1 + a * k2) % n] = row[k2];
  }
  visit(tree, x, y);
  return y;
}

// A block of real values by its tree, with the same root. Parts of complex values go through blocks
// of their own, where the first sample is first, and are combined behind them.
template <class R, class Visit>
Sums<R> halves(const Tree& tree, const std::vector<R>& x, int e, Form form, Visit visit) {
  const int n = tree.length;
  Sums<R> y = {std::vector<R>(n / 2 + 1), std::vector<R>(n / 2 + 1)};
  const auto set = [&](int k, R p, R q) {
    k %= n;
    y.p[std::min(k, n - k)] = p;
    y.q[std::min(k, n - k)] = 2 * k > n ? R() - q : q;
  };
  if (tree.kind == Tree::Kind::kLeaf) {
    const Sums<R> natural = leaf(x, form);
    for (int k = 0; 2 * k <= n; ++k) {
      const int f = (e * k % n + n) % n, bin = std::min(f, n - f);
      set(k, natural.p[bin], f == bin ? natural.q[bin] : R() - natural.q[bin]);
    }
    visit(tree, x, y);
    return y;
  }
  const int a = tree.first().length, b = tree.second().length;
  const bool twiddles = tree.kind == Tree::Kind::kCooleyTukey;
  std::vector<std::vector<R>> p(a / 2 + 1), q(a / 2 + 1);
  for (int j2 = 0; j2 < b; ++j2) {
    std::vector<R> column;
    for (int j1 = 0; j1 < a; ++j1) column.push_back(x[(b * j1 + (twiddles ? 1 : a) * j2) % n]);
    const Sums<R> sums = halves(tree.first(), column, twiddles ? e : e * b, form, visit);
    for (int k1 = 0; 2 * k1 <= a; ++k1) {
      p[k1].push_back(sums.p[k1]);
      q[k1].push_back(sums.q[k1]);
    }
  }
  for (int k1 = 0; 2 * k1 <= a; ++k1) {
    const auto set_row = [&](int k2, R cosine_sum, R sine_sum) {
      set(twiddles ? k1 + a * k2 : (b * k1 + a * k2) % n, cosine_sum, sine_sum);
    };
    const int root = twiddles ? e : e * a;
    if (2 * k1 == a && twiddles) {
      // Four points between the bins: the eighth turns stand before the butterflies or behind them.
      const __float128 c = cosine(1, 8);
      const bool behind = form == Form::kFirstSampleLast;
      const R u = p[k1][1], v = p[k1][3];
      const R t = behind ? c * (u - v) : c * u - c * v, w = behind ? c * (u + v) : c * u + c * v;
      const R cosine_sums[] = {p[k1][0] + t, p[k1][0] - t};
      const R sine_sums[] = {p[k1][2] + w, w - p[k1][2]};
      for (int k2 = 0; k2 < 2; ++k2) {
        const int f = (e * (2 * k2 + 1) % 8 + 8) % 8, at = std::min(f, 8 - f) / 2;
        set_row(k2, cosine_sums[at], f < 4 ? sine_sums[at] : R() - sine_sums[at]);
      }
      continue;
    }
    const bool is_real = k1 == 0 || 2 * k1 == a;
    for (int j2 = 0; twiddles && !is_real && j2 < b; ++j2) {
      const Sample<R> z = rotate(Sample<R>{p[k1][j2], q[k1][j2]}, e * j2 * k1, n);
      p[k1][j2] = z.re;
      q[k1][j2] = z.im;
    }
    const Form part = is_real ? form : Form::kFirstSampleFirst;
    const Sums<R> pp = halves(tree.second(), p[k1], root, part, visit);
    if (is_real) {
      for (int k2 = 0; 2 * k2 <= b; ++k2) set_row(k2, pp.p[k2], pp.q[k2]);
      continue;
    }
    const Sums<R> qq = halves(tree.second(), q[k1], root, part, visit);
    for (int k2 = 0; 2 * k2 <= b; ++k2) {
      if (k2 == 0 || 2 * k2 == b) {
        set_row(k2, pp.p[k2], qq.p[k2]);
      } else {
        set_row(k2, pp.p[k2] - qq.q[k2], pp.q[k2] + qq.p[k2]);
        set_row(b - k2, pp.p[k2] + qq.q[k2], qq.p[k2] - pp.q[k2]);
      }
    }
  }
  visit(tree, x, y);
  return y;
}

}  // namespace scalar_model
