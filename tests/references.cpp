#include "tests/references.h"

#include <quadmath.h>

#include <stdexcept>

#include "networks/walsh_hadamard.h"

namespace references {
namespace {

using gen::Quad;
using Values = std::vector<Quad>;
using Source = std::vector<double>;

// cos and sin of 2 pi i / n for i = 0..n - 1.
struct Circle {
  Values cosine, sine;

  explicit Circle(int n) : cosine(n), sine(n) {
    for (int i = 0; i < n; ++i) {
      cosine[i] = cosq(2 * M_PIq * i / n);
      sine[i] = sinq(2 * M_PIq * i / n);
    }
  }
};

Values complex_dft(int n, const Circle& circle, int sign, const Source& x) {
  Values y(2 * n);
  for (int k = 0; k < n; ++k) {
    for (int j = 0; j < n; ++j) {
      const Quad re = circle.cosine[j * k % n], im = sign * circle.sine[j * k % n];
      y[2 * k] += x[2 * j] * re - x[2 * j + 1] * im;
      y[2 * k + 1] += x[2 * j] * im + x[2 * j + 1] * re;
    }
  }
  return y;
}

Values real_dft(int n, const Circle& circle, const Source& x) {
  Values y(n / 2 * 2 + 2);
  for (int k = 0; k <= n / 2; ++k) {
    for (int j = 0; j < n; ++j) {
      y[2 * k] += x[j] * circle.cosine[j * k % n];
      y[2 * k + 1] -= x[j] * circle.sine[j * k % n];
    }
  }
  y[1] = 0;
  if (n % 2 == 0) y[n + 1] = 0;
  return y;
}

Values inverse_real_dft(int n, const Circle& circle, const Source& x) {
  Values y(n);
  for (int j = 0; j < n; ++j) {
    y[j] = x[0];
    for (int k = 1; k <= n / 2; ++k) {
      const Quad re = x[2 * k] * circle.cosine[j * k % n];
      const Quad im = 2 * k == n ? Quad(0) : x[2 * k + 1] * circle.sine[j * k % n];
      y[j] += (2 * k == n ? 1 : 2) * (re - im);
    }
  }
  return y;
}

Values hartley(int n, const Circle& circle, const Source& x) {
  Values y(n);
  for (int k = 0; k < n; ++k) {
    for (int j = 0; j < n; ++j) y[k] += x[j] * (circle.cosine[j * k % n] + circle.sine[j * k % n]);
  }
  return y;
}

// By its fast algorithm: the definition would take too long, and has a test of its own.
Values walsh_hadamard(const Source& x) {
  return networks::walsh_hadamard(Values(x.begin(), x.end()));
}

}  // namespace

Reference of(const gen::Kernel& kernel) {
  const int n = kernel.length();
  const bool forward = kernel.direction == gen::Direction::kForward;
  const Circle circle(kernel.transform == gen::Transform::kWalshHadamard ? 0 : n);
  switch (kernel.transform) {
    case gen::Transform::kComplexDft:
      return [=](const Source& x) { return complex_dft(n, circle, forward ? -1 : 1, x); };
    case gen::Transform::kRealDft:
      if (kernel.layout != gen::Layout::kCcs) break;
      if (forward) return [=](const Source& x) { return real_dft(n, circle, x); };
      return [=](const Source& x) { return inverse_real_dft(n, circle, x); };
    case gen::Transform::kHartley:
      return [=](const Source& x) { return hartley(n, circle, x); };
    case gen::Transform::kWalshHadamard:
      return walsh_hadamard;
  }
  throw std::invalid_argument("no definition of " + kernel.name);
}

}  // namespace references
