#include "gen/precision.h"

#include "gen/rewrite.h"

namespace gen {

namespace {

// Twice a value is exact in any precision.
bool is_doubling(const Graph& graph, const Node& node) {
  return node.lane_count == 1 && graph.factor(node, 0) == Number(2);
}

}  // namespace

Graph widen_products(const Graph& old) {
  const std::vector<int> uses = use_counts(old);
  std::vector<bool> is_double(old.size()), is_output(old.size());
  for (const Output& out : old.outputs()) is_output[out.from.node] = true;

  // The copy of an operand in the precision in which its reader takes it.
  const auto read = [&](Graph& graph, const NewValues& new_value, NodeId id, Precision wanted) {
    Value value = new_value[id];
    const bool is_sum = old[id].op == Op::kAdd || old[id].op == Op::kSub;
    if (is_double[id] && is_sum && uses[id] > 1) value = graph.round(value);
    const Precision precision = graph[value.node].precision;
    if (precision == wanted) return value;
    return wanted == Precision::kDouble ? graph.widen(value) : graph.round(value);
  };

  return rebuild(old, [&](Graph& graph, NodeId id, const NewValues& new_value) {
    const Node& node = old[id];
    switch (node.op) {
      case Op::kMul: {
        if (is_doubling(old, node)) return copy_node(old, id, graph, new_value);
        is_double[id] = true;
        return graph.mul(old.factors(node), read(graph, new_value, node.a, Precision::kDouble));
      }
      case Op::kAdd:
      case Op::kSub: {
        const auto sole_double = [&](NodeId operand) {
          return is_double[operand] && uses[operand] == 1;
        };
        is_double[id] = sole_double(node.a) || sole_double(node.b);
        const Precision precision = is_double[id] ? Precision::kDouble : Precision::kSingle;
        const Value a = read(graph, new_value, node.a, precision);
        const Value b = read(graph, new_value, node.b, precision);
        return graph.add(a, node.op == Op::kSub ? -b : b);
      }
      case Op::kScale:
      case Op::kFromZero: {
        is_double[id] = is_double[node.a];
        const Value value = copy_node(old, id, graph, new_value);
        return is_double[id] && is_output[id] ? graph.round(value) : value;
      }
      default:
        return copy_node(old, id, graph, new_value);
    }
  });
}

}  // namespace gen
