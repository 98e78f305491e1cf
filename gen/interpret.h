// Runs a graph in the precisions of its nodes: what the compiled kernel has to give, bit for bit.
#pragma once

#include <vector>

#include "gen/graph.h"

namespace gen {

// `source` and the result hold one sample element each, a single-precision one widened. The result
// has one element for each output, in the order of `graph.outputs()`.
std::vector<double> interpret(const Graph& graph, const std::vector<double>& source, double scale);

}  // namespace gen
