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
  Turn operator-() const { return Turn(-numerator, denominator); }
  friend bool operator==(const Turn&, const Turn&) = default;
};

// How z is turned by an odd multiple of 45 degrees: the parts of that root have one magnitude g, so
// the products g re, g im come before or behind the sum and the difference of the two.
enum class Diagonal { kProductsFirst, kSumsFirst };

// z * root, with the signs of the root's parts kept outside the constants.
template <class C>
C rotate(const C& z, const Turn& turn, Diagonal diagonal = Diagonal::kProductsFirst) {
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
    const auto sum = [&](const C& z) {
      const C turned = minus_i(z);
      return (w.re.is_negative() ? -z : z) + (w.im.is_negative() ? turned : -turned);
    };
    const Number g = w.re.magnitude();
    return diagonal == Diagonal::kProductsFirst ? sum(g * z) : g * sum(z);
  }
  return w.re * z - w.im * minus_i(z);
}

}  // namespace networks
