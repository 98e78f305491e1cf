// Complex DFTs of length 2, 3, 4 and 5: the leaves of most decomposition trees.
//
// Each takes and returns its values in natural order, with root exp(-2 pi i / n). `C` is a complex
// value type: +, -, Number * C and minus_i(C). Every order of operations here is binding, since it
// fixes the rounding of the kernels.
#pragma once

#include <stdexcept>
#include <string>
#include <vector>

#include "networks/complex.h"

namespace networks {

template <class C>
std::vector<C> dft2(const std::vector<C>& x) {
  return {x[0] + x[1], x[0] - x[1]};
}

// 12 real additions, 4 multiplications.
template <class C>
std::vector<C> dft3(const std::vector<C>& x) {
  const C sum = x[1] + x[2];
  const C mean = x[0] - gen::ratio(1, 2) * sum;
  const C turned = gen::sin_of_turn(1, 3) * minus_i(x[1] - x[2]);
  return {x[0] + sum, mean + turned, mean - turned};
}

// The radix-4 block: 16 real additions.
template <class C>
std::vector<C> dft4(const std::vector<C>& x) {
  const C a = x[0] + x[2], b = x[0] - x[2];
  const C c = x[1] + x[3], turned = minus_i(x[1] - x[3]);
  return {a + c, b + turned, a - c, b - turned};
}

// Direct symmetric form: 32 real additions, 16 multiplications.
template <class C>
std::vector<C> dft5(const std::vector<C>& x) {
  const Number c1 = gen::cos_of_turn(1, 5), c2 = -gen::cos_of_turn(2, 5);
  const Number s1 = gen::sin_of_turn(1, 5), s2 = gen::sin_of_turn(2, 5);
  const C a = x[1] + x[4], b = x[3] + x[2];
  const C f = minus_i(x[1] - x[4]), e = minus_i(x[3] - x[2]);
  const C p1 = (c1 * a + x[0]) - c2 * b;
  const C p2 = (x[0] - c2 * a) + c1 * b;
  const C r1 = s1 * f - s2 * e;
  const C r2 = s2 * f + s1 * e;
  return {(x[0] + a) + b, p1 + r1, p2 + r2, p2 - r2, p1 - r1};
}

template <class C>
std::vector<C> short_dft(const std::vector<C>& x) {
  switch (x.size()) {
    case 2:
      return dft2(x);
    case 3:
      return dft3(x);
    case 4:
      return dft4(x);
    case 5:
      return dft5(x);
  }
  throw std::invalid_argument("no short form of length " + std::to_string(x.size()));
}

}  // namespace networks
