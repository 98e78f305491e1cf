// A model of what a graph costs on a core that adds and shuffles on two ports and does all vector
// work on three; a conversion is an addition and a shuffle. It serves to choose between
// arrangements of the same arithmetic, and as what a measured time is held against.
#pragma once

#include "gen/graph.h"

namespace gen {

struct VectorOperations {
  int additions = 0, multiplications = 0, moves = 0, sign_flips = 0, conversions = 0;
};

// Of a graph whose lane moves are single instructions. Loads and stores are left out.
VectorOperations count_vector_operations(const Graph& graph);

// The least number of cycles that these operations keep the ports busy.
double port_bound(const VectorOperations& operations);

// Cycles until the result of an operation can be used. That of a move from one half of 256 bits to
// the other is longer.
int latency(Op op);
inline constexpr int kCrossingLatency = 3;

// For a choice between graphs: of those with equal bounds, the one with fewer operations is
// cheaper.
double port_cost(const VectorOperations& operations);

}  // namespace gen
