#include "gen/number.h"

#include <cmath>
#include <cstdio>
#include <map>
#include <numeric>
#include <utility>

namespace gen {
namespace {

// Pi as the exact sum of three doubles, good to 160 bits.
Quad pi() {
  return Quad(0x1.921fb54442d18p+1) + Quad(0x1.1a62633145c07p-53) + Quad(-0x1.f1976b7ed8fbcp-109);
}

// Sum of the Taylor series whose first term is `term`, for |x| <= pi / 4: every further term is
// smaller by x^2 / (k (k + 1)), so 15 of them reach below 2^-113.
Quad taylor(Quad term, int k, Quad x) {
  Quad sum = 0;
  for (int i = 0; i < 16; ++i, k += 2) {
    sum += term;
    term *= -x * x / (k * (k + 1));
  }
  return sum;
}

std::string fraction(long numerator, long denominator) {
  return denominator == 1 ? std::to_string(numerator)
                          : std::to_string(numerator) + "/" + std::to_string(denominator);
}

std::string formatted(const char* format, double value) {
  char text[40];
  std::snprintf(text, sizeof text, format, value);
  std::string literal = text;
  if (literal.find_first_of(".e") == std::string::npos) literal += ".0";
  return literal;
}

}  // namespace

Number::Number(int value) : value_(value), name_(std::to_string(value < 0 ? -value : value)) {}

Number operator*(const Number& a, const Number& b) {
  if (a.magnitude() == Number(1)) return a.is_negative() ? -b : b;
  if (b.magnitude() == Number(1)) return b.is_negative() ? -a : a;
  return Number(a.value() * b.value(), a.name() + " * " + b.name());
}

Number difference(const Number& a, const Number& b) {
  return Number(a.value() - b.value(), "difference " + a.name() + " and " + b.name());
}

Number ratio(int numerator, int denominator) {
  const int common = std::gcd(numerator, denominator);
  const int top = numerator / common;
  return Number(Quad(numerator) / denominator,
                fraction(top < 0 ? -top : top, denominator / common));
}

namespace {

Number compute_cos_of_turn(long numerator, long denominator) {
  // Count in eighths of a turn: the octant, and within it a remainder that odd octants reverse.
  numerator %= denominator;
  if (numerator < 0) numerator += denominator;
  const long octant = 8 * numerator / denominator;
  long rest = 8 * numerator - octant * denominator;  // of 8 * denominator
  if (octant % 2 == 1) rest = denominator - rest;
  const bool as_sine = octant == 1 || octant == 2 || octant == 5 || octant == 6;
  const bool negative = octant >= 2 && octant <= 5;

  const long common = std::gcd(rest, 8 * denominator);
  const long top = rest / common, bottom = 8 * denominator / common;
  Number magnitude(0);
  if (top == 0) {
    magnitude = Number(as_sine ? 0 : 1);
  } else if (as_sine && top == 1 && bottom == 12) {
    magnitude = ratio(1, 2);
  } else if (bottom == 8) {
    magnitude = Number(taylor(1, 1, pi() / 4), "sqrt 1/2");
  } else {
    const Quad x = 2 * pi() * top / bottom;
    magnitude = as_sine ? Number(taylor(x, 2, x), "sin " + fraction(top, bottom))
                        : Number(taylor(1, 1, x), "cos " + fraction(top, bottom));
  }
  return negative && !(magnitude == Number(0)) ? -magnitude : magnitude;
}

}  // namespace

Number cos_of_turn(long numerator, long denominator) {
  // The same few thousand angles come up again and again.
  static std::map<std::pair<long, long>, Number> known;
  const std::pair turn(numerator % denominator, denominator);
  const auto at = known.find(turn);
  if (at != known.end()) return at->second;
  return known.emplace(turn, compute_cos_of_turn(numerator, denominator)).first->second;
}

Number sin_of_turn(long numerator, long denominator) {
  return cos_of_turn(4 * numerator - denominator, 4 * denominator);
}

Number tan_of_turn(long numerator, long denominator) {
  const Number sine = sin_of_turn(numerator, denominator);
  const long common = std::gcd(numerator, denominator);
  return Number(sine.value() / cos_of_turn(numerator, denominator).value(),
                "tan " + fraction(numerator / common, denominator / common));
}

ComplexNumber unit_root(long numerator, long denominator) {
  return {cos_of_turn(numerator, denominator), sin_of_turn(numerator, denominator)};
}

std::string float_literal(Quad value) { return formatted("%.9g", static_cast<float>(value)) + "f"; }

std::string double_literal(Quad value) { return formatted("%.17g", static_cast<double>(value)); }

}  // namespace gen
