// Named rewrites of a graph. None changes the value of any float operation.
#pragma once

#include <vector>

#include "gen/graph.h"

namespace gen {

// How many operands and outputs read each node; a node that reads another twice counts twice.
std::vector<int> use_counts(const Graph& graph);

// Moves sign flips of single lanes into the constants of the multiplication behind or before them:
// c * flip(x) and flip(c * x) become (flip c) * x.
Graph absorb_sign_flips(const Graph& graph);

}  // namespace gen
