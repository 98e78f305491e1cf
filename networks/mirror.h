// The mirror image (transpose) of a linear network: every edge reversed, sums become branches and
// branches sums, constants stay. It has the same multiplications, and the same additions but for
// the difference in the number of inputs and outputs.
//
// A network is mirrored by running it once on expressions of a graph of its own.
#pragma once

#include <optional>
#include <vector>

#include "gen/expr.h"

namespace networks {

// `make(inputs)` is the network, from `input_count` expressions to some others. The values are one
// for each of its outputs; the result has one for each of its inputs.
template <class V, class Make>
std::vector<V> run_mirrored(int input_count, Make make, const std::vector<V>& values) {
  gen::Graph graph(gen::Precision::kDouble);
  std::vector<gen::Expr> inputs;
  for (int i = 0; i < input_count; ++i) inputs.push_back({&graph, graph.input(i)});
  const std::vector<gen::Expr> outputs = make(inputs);

  std::vector<std::optional<V>> flow(graph.size());
  const auto give = [&](gen::NodeId node, const V& value, bool negative) {
    std::optional<V>& sum = flow[node];
    if (!sum) {
      sum = negative ? -value : value;
    } else {
      sum = negative ? *sum - value : *sum + value;
    }
  };
  for (std::size_t i = 0; i < outputs.size(); ++i) {
    give(outputs[i].value.node, values[i], outputs[i].value.negative);
  }
  std::vector<gen::NodeId> roots;
  for (const gen::Expr& output : outputs) roots.push_back(output.value.node);
  const std::vector<gen::NodeId> order = graph.nodes_behind(roots);
  for (auto at = order.rbegin(); at != order.rend(); ++at) {
    const gen::NodeId id = *at;
    const gen::Node& node = graph[id];
    if (node.op == gen::Op::kInput) continue;
    const V value = *flow[id];
    if (node.op == gen::Op::kMul) {
      give(node.a, graph.factor(node, 0) * value, false);
    } else {
      give(node.a, value, false);
      give(node.b, value, node.op == gen::Op::kSub);
    }
  }
  std::vector<V> result;
  for (const gen::Expr& input : inputs) result.push_back(flow[input.value.node].value());
  return result;
}

}  // namespace networks
