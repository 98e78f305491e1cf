// Exact constants of the networks: numbers known to 113 bits, rounded once, when they are printed.
#pragma once

#include <array>
#include <bit>
#include <cstdint>
#include <string>

namespace gen {

using Quad = __float128;

// A real constant and the name under which generated code shows it. Two numbers are the same
// constant exactly if their values are, bit for bit; angles are therefore reduced to one octant
// before any cosine or sine is taken, so that equal magnitudes come out equal.
class Number {
 public:
  Number(int value);  // NOLINT: an integer is a number
  Number(Quad value, std::string name) : value_(value), name_(std::move(name)) {}

  Quad value() const { return value_; }
  // The magnitude's name, such as "cos 1/12" (of 1/12 turn) or "1/2".
  const std::string& name() const { return name_; }

  bool is_negative() const { return value_ < 0; }
  Number magnitude() const { return is_negative() ? -*this : *this; }
  Number operator-() const { return Number(-value_, name_); }
  // Numbers are equal as constants of a kernel exactly if their bits are: +0 and -0 differ.
  using Bits = std::array<std::uint64_t, 2>;
  Bits bits() const { return std::bit_cast<Bits>(value_); }
  friend bool operator==(const Number& a, const Number& b) { return a.bits() == b.bits(); }

 private:
  Quad value_;
  std::string name_;
};

// The exact product, named after its factors.
Number operator*(const Number& a, const Number& b);

// a - b.
Number difference(const Number& a, const Number& b);

// numerator / denominator.
Number ratio(int numerator, int denominator);

// Cosine and sine of numerator / denominator of a full turn.
Number cos_of_turn(long numerator, long denominator);
Number sin_of_turn(long numerator, long denominator);
Number tan_of_turn(long numerator, long denominator);  // of the first eighth

// A point of the complex plane, such as a twiddle factor.
struct ComplexNumber {
  Number re, im;
};

// exp(2 pi i numerator / denominator).
ComplexNumber unit_root(long numerator, long denominator);

// The decimal text that reads back as the float, or double, nearest to the value.
std::string float_literal(Quad value);
std::string double_literal(Quad value);

}  // namespace gen
