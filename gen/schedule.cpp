#include "gen/schedule.h"

#include <algorithm>
#include <charconv>
#include <stdexcept>

namespace gen {

Order parse_order(std::string_view text) {
  Order order;
  std::string_view rest = text;
  const auto strip = [&](std::string_view word) {
    const bool found = rest.starts_with(word);
    if (found) rest.remove_prefix(word.size());
    return found;
  };
  if (strip("live ")) {
    order.strategy = Order::Strategy::kLive;
  } else if (!strip("bisect ")) {
    throw std::invalid_argument("not an order: " + std::string(text));
  }
  const auto [end, error] = std::from_chars(rest.begin(), rest.end(), order.variant);
  if (error != std::errc() || end != rest.end()) {
    throw std::invalid_argument("not an order: " + std::string(text));
  }
  return order;
}

std::string to_string(const Order& order) {
  const bool live = order.strategy == Order::Strategy::kLive;
  return (live ? "live " : "bisect ") + std::to_string(order.variant);
}

std::uint32_t tie_break(int variant, int item) {
  if (variant == 0) return 0;
  std::uint32_t x = static_cast<std::uint32_t>(item) * 0x9e3779b9u + variant;
  x = (x ^ x >> 16) * 0x85ebca6bu;
  x = (x ^ x >> 13) * 0xc2b2ae35u;
  return x ^ x >> 16;
}

bool is_load(const Graph& graph, NodeId id) {
  const Node& node = graph[id];
  if (node.op == Op::kInput || node.op == Op::kFetch || node.op == Op::kZero) return true;
  if (node.op != Op::kLanes) return false;
  const std::vector<NodeId> operands = graph.operands(id);
  return std::all_of(operands.begin(), operands.end(), [&](NodeId operand) {
    return graph[operand].op == Op::kInput || graph[operand].op == Op::kZero;
  });
}

std::vector<NodeId> schedule(const Graph& graph, const Order& order) {
  Dependencies dag;
  const std::vector<bool> live = graph.live_nodes();
  std::vector<int> position(graph.size(), -1);
  for (NodeId id = 0; id < graph.size(); ++id) {
    if (!live[id] || is_load(graph, id)) continue;
    position[id] = static_cast<int>(dag.operations.size());
    dag.operations.push_back(id);
  }
  const std::size_t count = dag.operations.size();
  dag.operands.resize(count);
  dag.users.resize(count);
  dag.loads.resize(count);
  dag.is_output.resize(count);
  for (std::size_t i = 0; i < count; ++i) {
    for (NodeId operand : graph.operands(dag.operations[i])) {
      if (position[operand] < 0) {
        dag.loads[i].push_back(operand);
      } else {
        dag.operands[i].push_back(position[operand]);
        dag.users[position[operand]].push_back(static_cast<int>(i));
      }
    }
  }
  for (const Output& out : graph.outputs()) {
    if (position[out.from.node] >= 0) dag.is_output[position[out.from.node]] = true;
  }
  std::vector<NodeId> result;
  const bool live_values = order.strategy == Order::Strategy::kLive;
  for (int i : live_values ? order_by_live_values(dag, order.variant)
                           : order_by_bisection(dag, order.variant)) {
    result.push_back(dag.operations[i]);
  }
  return result;
}

}  // namespace gen
