// Complex arithmetic over any real value type, in the operations that the networks use.
#pragma once

#include "gen/number.h"

namespace networks {

using gen::ComplexNumber;
using gen::Number;
using gen::Quad;

inline Quad operator*(const Number& factor, Quad a) { return factor.value() * a; }

template <class V>
struct Complex {
  V re, im;
};

template <class V>
Complex<V> operator-(const Complex<V>& a) {
  return {-a.re, -a.im};
}

template <class V>
Complex<V> operator+(const Complex<V>& a, const Complex<V>& b) {
  return {a.re + b.re, a.im + b.im};
}

template <class V>
Complex<V> operator-(const Complex<V>& a, const Complex<V>& b) {
  return {a.re - b.re, a.im - b.im};
}

template <class V>
Complex<V> operator*(const Number& factor, const Complex<V>& a) {
  return {factor * a.re, factor * a.im};
}

// -i z: a swap and a sign, no arithmetic.
template <class V>
Complex<V> minus_i(const Complex<V>& z) {
  return {z.im, -z.re};
}

}  // namespace networks
