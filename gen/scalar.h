// One lane of a graph's node, for passes that expand vectors into scalar expressions.
#pragma once

#include <compare>

namespace gen {

// A real value told by the number of its expression, and a sign that is kept outside.
struct Scalar {
  int id = 0;  // 0 is the value zero
  bool negative = false;
  Scalar operator-() const { return {id, !negative}; }
  friend auto operator<=>(const Scalar&, const Scalar&) = default;
};

}  // namespace gen
