// How much arithmetic a graph holds, lane by lane, counting only lanes that reach an output.
#pragma once

#include "gen/graph.h"

namespace gen {

struct Counts {
  int additions = 0;        // and subtractions
  int multiplications = 0;  // the scale factor is left out
  friend bool operator==(const Counts&, const Counts&) = default;
};

// The arithmetic of the algorithm: products by 0, 1 and -1 and the additions that they leave empty
// are no operations, and equal operations count once. A product is told by its operand and its
// signed constant; the sign of an operand stays outside.
Counts count_operations(const Graph& graph);

// The arithmetic as the lanes carry it: every addition, and every product but those by 1; what is
// zero whatever the input is left out.
Counts count_carried_operations(const Graph& graph);

}  // namespace gen
