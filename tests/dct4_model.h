// The DCT-IV written down once more, for the tests: the algorithm's definition on plain scalars,
// and the transform's in long double.
#pragma once

#include <cmath>
#include <complex>
#include <functional>
#include <random>
#include <span>
#include <stdexcept>
#include <vector>

#include "dct4/kernels/base_case.h"
#include "dct4/kernels/kernels.h"

namespace dct4_model {

using dct4::ComplexBlock;
using dct4::LastSign;
using dct4::Rotation;
using dct4::UpperHalf;

// A value of a network that rounds every operation as a kernel of sample type T does.
template <class T>
struct Rounded {
  T v{};
  Rounded operator-() const { return {-v}; }
  friend Rounded operator+(Rounded a, Rounded b) { return {a.v + b.v}; }
  friend Rounded operator-(Rounded a, Rounded b) { return {a.v - b.v}; }
  friend Rounded operator*(Rounded a, Rounded b) { return {a.v * b.v}; }
  friend Rounded operator*(const gen::Number& a, Rounded b) {
    return {static_cast<T>(a.value()) * b.v};
  }
};

// Angles as the tables have them: pi x is rounded to the sample type before its cosine is taken.
inline Rotation<Rounded<float>> table_pair(float x) {
  const float angle = static_cast<float>(x * 3.14159265358979323846);
  return {{cosf(angle)}, {sinf(angle)}};
}
inline Rotation<Rounded<double>> table_pair(double x) {
  return {{std::cos(x * 3.14159265358979323846)}, {std::sin(x * 3.14159265358979323846)}};
}

// The rotations of skew transforms of `size` values, moved by lambda + j for j below `count`, as
// parts of one of `whole` values. (In single precision, the product is exact for all that occurs.)
template <class T>
std::vector<Rotation<Rounded<T>>> skew_rotations(T lambda, int count, int size, int whole) {
  std::vector<Rotation<Rounded<T>>> result;
  for (int j = 0; j < count; ++j) {
    const double moved = static_cast<T>(lambda + static_cast<T>(j));
    for (int k = 1; k < size; ++k)
      result.push_back(table_pair(static_cast<T>(moved * 2 * k / whole)));
  }
  return result;
}

template <class T>
ComplexBlock<Rounded<T>> skew_sum(const ComplexBlock<Rounded<T>>& z, T lambda, UpperHalf upper) {
  const int r = static_cast<int>(z.size());
  if (r <= 8) return dct4::skew_sum(z, skew_rotations(lambda, 1, r, r), upper);
  return dct4::skew_sum(z, skew_rotations(lambda, 1, r / 4, r / 4),
                        skew_rotations(lambda, r / 4, 4, r), upper);
}

inline std::span<const int> radices(dct4::Kind kind, int size) {
  for (const dct4::Row& row : dct4::kRows) {
    if (row.kind == kind && row.size == size) return row.radices;
  }
  throw std::out_of_range("no such kernel");
}

// The divisors of the splits: 2, 4, 8, 16, 32 from halves of 4, 16, 32, 128, 512 on.
inline int split_divisor(int half) {
  return half >= 512 ? 32 : half >= 128 ? 16 : half >= 32 ? 8 : half >= 16 ? 4 : 2;
}

// T(N) of the sequence v, given as v(t) for t from -N / 2 to N / 2 - 1.
template <class T>
ComplexBlock<Rounded<T>> first_stage(int N, const std::function<Rounded<T>(int)>& v) {
  if (N <= 64) {
    std::vector<Rounded<T>> u;
    for (int s = 0; s < N; ++s) u.push_back(v(s % 2 == 0 ? s / 2 : -(s + 1) / 2));
    return dct4::first_stage(u, radices(dct4::Kind::kFirstStage, N));
  }
  const int r = split_divisor(N / 2), M = N / r;
  std::vector<ComplexBlock<Rounded<T>>> parts;
  for (int rho = 0; rho < r; ++rho) {
    parts.push_back(first_stage<T>(M, [&](int tau) { return v(rho + r * tau); }));
  }
  ComplexBlock<Rounded<T>> z(N / 2);
  for (int kappa = 0; kappa < M / 2; ++kappa) {
    ComplexBlock<Rounded<T>> column;
    for (const auto& part : parts) column.push_back(part[kappa]);
    const T lambda = (static_cast<T>(kappa) + T(0.5)) / static_cast<T>(M);
    const auto y = skew_sum(column, lambda, UpperHalf::kConjugated);
    for (int a = 0; a < r / 2; ++a) {
      z[kappa + M * a] = y[a];
      z[M - 1 - kappa + M * a] = y[r - 1 - a];
    }
  }
  return z;
}

// What a transform gives, bit for bit.
template <class T>
std::vector<T> transform(const std::vector<T>& x) {
  const int n = static_cast<int>(x.size()), d = split_divisor(n / 2), m = n / (2 * d);
  std::vector<T> y(n);
  if (n <= 32) {
    std::vector<Rounded<T>> values;
    for (T sample : x) values.push_back({sample});
    values = dct4::base_case(values, radices(dct4::Kind::kBaseCase, n));
    for (int k = 0; k < n; ++k) y[k] = values[k].v;
    return y;
  }
  std::vector<ComplexBlock<Rounded<T>>> columns;
  for (int p = 0; p < d; ++p) {
    columns.push_back(first_stage<T>(
        2 * m, [&](int t) { return Rounded<T>{x[t >= 0 ? 2 * d * t + p : -2 * d * t - 1 - p]}; }));
  }
  for (int q = 0; q < m; ++q) {
    ComplexBlock<Rounded<T>> z;
    for (int p = 0; p < d; ++p) {
      const T count = static_cast<T>(2 * (2 * p + 1) * (2 * q + 1));
      z.push_back(rotate(table_pair(count / static_cast<T>(8 * n)), columns[p][q]));
    }
    const auto o = dct4::second_stage(z, radices(dct4::Kind::kSecondStage, d), LastSign::kTurned);
    for (int l = 0; l < d; ++l) {
      y[2 * m * l + q] = o[l == 0 ? 0 : 2 * l - 1].v;
      y[2 * m * (l + 1) - 1 - q] = o[l == d - 1 ? 2 * d - 1 : 2 * l + 2].v;
    }
  }
  return y;
}

// What sizing accepts: powers of two, and these plus one; where sums wrap, the sign decides.
template <class T>
bool is_accepted(int n) {
  const bool is_single = sizeof(T) == sizeof(float);
  const int last = is_single ? 1 << 26 : 1 << 25, wrapped = is_single ? 1 << 30 : 1 << 29;
  for (int power = 2; power > 0; power = power == 1 << 30 ? 0 : 2 * power) {
    const bool is_one_more = n == power + 1 && n >= (is_single ? 33 : 9);
    if (n == power || is_one_more) return power <= last || power >= wrapped;
  }
  return false;
}

template <class T>
std::vector<T> random_samples(int n, int seed = 1) {
  std::mt19937 random(n + 977 * seed);
  std::uniform_real_distribution<T> uniform(-1, 1);
  std::vector<T> x(n);
  for (T& sample : x) sample = uniform(random);
  return x;
}

// The transform in long double, by a complex DFT of n / 2 points: of the even samples and,
// backwards, the odd ones.
template <class T>
std::vector<long double> fast_sum(const std::vector<T>& x) {
  using Value = std::complex<long double>;
  const int n = static_cast<int>(x.size()), half = n / 2;
  const auto turn = [n](int quarters) { return std::polar(1.0L, -M_PIl * quarters / (4 * n)); };
  std::vector<Value> z(half), next(half);
  for (int j = 0; j < half; ++j) z[j] = Value(x[2 * j], x[n - 1 - 2 * j]) * turn(4 * j + 1);
  // Stockham's form: `stride` transforms of `length` points each.
  for (int length = half, stride = 1; length > 1; length /= 2, stride *= 2) {
    for (int p = 0; p < length / 2; ++p) {
      const Value w = std::polar(1.0L, -2 * M_PIl * p / length);
      for (int q = 0; q < stride; ++q) {
        const Value a = z[q + stride * p], b = z[q + stride * (p + length / 2)];
        next[q + stride * 2 * p] = a + b;
        next[q + stride * (2 * p + 1)] = (a - b) * w;
      }
    }
    std::swap(z, next);
  }
  std::vector<long double> y(n);
  for (int k = 0; k < half; ++k) {
    const Value c = z[k] * turn(4 * k);
    y[2 * k] = c.real();
    y[n - 1 - 2 * k] = -c.imag();
  }
  return y;
}

}  // namespace dct4_model
