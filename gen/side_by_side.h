// Two of a graph at once.
#pragma once

#include "gen/graph.h"

namespace gen {

// The graph in vectors twice as wide, whose upper halves do the same with other values. What they
// read of the source stands `distance` elements behind; accessors bring and take both halves. The
// graph is one that lowered() gave, of vectors alone, and every output is a whole one.
Graph side_by_side(const Graph& graph, int distance);

}  // namespace gen
