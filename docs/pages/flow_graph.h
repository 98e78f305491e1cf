// The data flow of a kernel as a reader wants to see it: every value once, from the samples to the
// elements of the spectrum.
#pragma once

#include <string>
#include <vector>

#include "gen/kernel.h"

namespace pages {

struct FlowNode {
  enum class Kind { kSource, kSum, kDifference, kProduct, kNegative, kDestination };
  Kind kind = Kind::kSource;
  std::string label;
  std::string hint;  // a constant's value
};

struct FlowEdge {
  int from = 0, to = 0;
  bool subtracted = false;
};

struct FlowGraph {
  std::vector<FlowNode> nodes;
  std::vector<FlowEdge> edges;
};

// Of a scalar kernel; `destination_names` are those of the elements that it writes. The scaling of
// the result is left out, and elements that are always zero. Throws std::logic_error if the kernel
// holds vectors.
FlowGraph flow_graph(const gen::Graph& graph, const std::vector<std::string>& destination_names);

}  // namespace pages
