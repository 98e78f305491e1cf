#include "gen/schedule.h"

#include <algorithm>
#include <charconv>
#include <iterator>
#include <stdexcept>

#include "gen/cost.h"

namespace gen {

namespace {

struct Named {
  std::string_view name;
  std::vector<int> (*order)(const Dependencies& dag, int variant);
};
// By Order::Strategy.
constexpr Named kStrategies[] = {
    {"bisect", order_by_bisection}, {"live", order_by_live_values}, {"paced", order_by_pace}};

}  // namespace

Order parse_order(std::string_view text) {
  const std::size_t space = std::min(text.find(' '), text.size());
  for (int strategy = 0; strategy < static_cast<int>(std::size(kStrategies)); ++strategy) {
    if (text.substr(0, space) != kStrategies[strategy].name || space == text.size()) continue;
    Order order = {static_cast<Order::Strategy>(strategy), 0};
    const auto [end, error] = std::from_chars(text.begin() + space + 1, text.end(), order.variant);
    if (error == std::errc() && end == text.end() && order.variant >= 0) return order;
  }
  throw std::invalid_argument("not an order: " + std::string(text));
}

std::string to_string(const Order& order) {
  return std::string(kStrategies[static_cast<int>(order.strategy)].name) + " " +
         std::to_string(order.variant);
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
  for (NodeId id : dag.operations) dag.latencies.push_back(latency(graph[id].op));
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
  const Named& strategy = kStrategies[static_cast<int>(order.strategy)];
  for (int i : strategy.order(dag, order.variant)) result.push_back(dag.operations[i]);
  return result;
}

}  // namespace gen
