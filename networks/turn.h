// Angles as fractions of a full turn, and multiplication by the unit roots that they stand for.
#pragma once

#include <numeric>

#include "networks/complex.h"

namespace networks {

// In lowest terms, 0 <= numerator < denominator.
struct Turn {
  long numerator, denominator;

  Turn(long n, long d) {
    n = (n % d + d) % d;
    const long common = std::gcd(n, d);
    numerator = n / common;
    denominator = d / common;
  }
  // A multiple of 90 degrees: multiplying by it takes no arithmetic.
  bool is_quarter() const { return 4 % denominator == 0; }
  // exp(2 pi i * turn).
  ComplexNumber root() const { return gen::unit_root(numerator, denominator); }
  friend bool operator==(const Turn&, const Turn&) = default;
};

// z * root, with the signs of the root's parts kept outside the constants. An odd multiple of 45
// degrees has parts of one magnitude, which takes one product of z.
template <class C>
C rotate(const C& z, const Turn& turn) {
  switch (turn.denominator) {
    case 1:
      return z;
    case 2:
      return -z;
    case 4:
      return turn.numerator == 3 ? minus_i(z) : -minus_i(z);
  }
  const ComplexNumber w = turn.root();
  if (turn.denominator == 8) {
    const C product = w.re.magnitude() * z;
    const C turned = minus_i(product);
    return (w.re.is_negative() ? -product : product) + (w.im.is_negative() ? turned : -turned);
  }
  return w.re * z - w.im * minus_i(z);
}

}  // namespace networks
