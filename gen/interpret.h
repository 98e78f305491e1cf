// Runs a graph in the precisions of its nodes: what the compiled kernel has to give, bit for bit.
#pragma once

#include <array>
#include <vector>

#include "gen/graph.h"

namespace gen {

using LaneValues = std::array<double, kMaxLanes>;

// The value of every node that an output depends on. `source` holds the sample elements, a
// single-precision one widened; so do the values.
std::vector<LaneValues> evaluate(const Graph& graph, const std::vector<double>& source,
                                 double scale);

// The destination: one element for each of `graph.outputs()`, at the index that it names. Elements
// that the graph doesn't write are zero.
std::vector<double> interpret(const Graph& graph, const std::vector<double>& source, double scale);

}  // namespace gen
