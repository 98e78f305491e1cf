// The Walsh-Hadamard transform in natural order, by its fast algorithm: one stage of butterflies
// for each bit of the index, lowest bit first.
#pragma once

#include <cstddef>
#include <vector>

namespace networks {

// All stages over a power of two of values. The value whose bit is clear is the minuend. As the
// order of the stages settles every rounding, it is part of the transform's definition here.
template <class V>
std::vector<V> walsh_hadamard(std::vector<V> v) {
  for (std::size_t bit = 1; bit < v.size(); bit *= 2) {
    for (std::size_t i = 0; i < v.size(); ++i) {
      if (i & bit) continue;
      const V a = v[i], b = v[i + bit];
      v[i] = a + b;
      v[i + bit] = a - b;
    }
  }
  return v;
}

}  // namespace networks
