#include "gen/rewrite.h"

#include <algorithm>

namespace gen {
namespace {

Factors flipped(Factors factors, unsigned flips) {
  for (std::size_t lane = 0; lane < factors.size(); ++lane) {
    if (flips >> lane & 1) factors[lane] = -factors[lane];
  }
  return factors;
}

}  // namespace

std::vector<int> use_counts(const Graph& graph) {
  std::vector<int> uses(graph.size());
  for (const Output& out : graph.outputs()) ++uses[out.from.node];
  const std::vector<bool> live = graph.live_nodes();
  for (NodeId id = 0; id < graph.size(); ++id) {
    if (!live[id]) continue;
    for (NodeId operand : graph.operands(id)) ++uses[operand];
    if (graph[id].a != kNoNode && graph[id].a == graph[id].b) ++uses[graph[id].a];
  }
  return uses;
}

Graph fold_products(const Graph& old) {
  const std::vector<int> uses = use_counts(old);
  const auto sole_product = [&](NodeId id) { return old[id].op == Op::kMul && uses[id] == 1; };
  return rebuild(old, [&](Graph& graph, NodeId id, const NewValues& new_value) {
    const Node& node = old[id];
    if (node.op != Op::kMul) return copy_node(old, id, graph, new_value);
    const Node& sum = old[node.a];
    const bool is_sum = sum.op == Op::kAdd || sum.op == Op::kSub;
    if (!is_sum || uses[node.a] != 1 || !sole_product(sum.a) || !sole_product(sum.b)) {
      return copy_node(old, id, graph, new_value);
    }
    const auto folded = [&](NodeId product) {
      Factors factors;
      for (int lane = 0; lane < node.lane_count; ++lane) {
        factors.push_back(old.factor(node, lane) * old.factor(old[product], lane));
      }
      return graph.mul(factors, new_value[old[product].a]);
    };
    const Value a = folded(sum.a), b = folded(sum.b);
    return graph.add(a, sum.op == Op::kSub ? -b : b);
  });
}

namespace {

// c * (k * x), where nothing else reads k * x, as (c * k) * x.
Graph fold_chains(const Graph& old) {
  const std::vector<int> uses = use_counts(old);
  return rebuild(old, [&](Graph& graph, NodeId id, const NewValues& new_value) {
    const Node& node = old[id];
    if (node.op != Op::kMul || old[node.a].op != Op::kMul || uses[node.a] != 1) {
      return copy_node(old, id, graph, new_value);
    }
    Factors factors;
    for (int lane = 0; lane < node.lane_count; ++lane) {
      factors.push_back(old.factor(node, lane) * old.factor(old[node.a], lane));
    }
    return graph.mul(factors, new_value[old[node.a].a]);
  });
}

int live_size(const Graph& graph) {
  const std::vector<bool> live = graph.live_nodes();
  return static_cast<int>(std::count(live.begin(), live.end(), true));
}

}  // namespace

Graph fold_all_products(const Graph& old) {
  Graph graph = old;
  for (;;) {
    Graph folded = fold_products(fold_chains(graph));
    if (live_size(folded) == live_size(graph)) return graph;
    graph = std::move(folded);
  }
}

Graph number_from_outputs(const Graph& old) {
  std::vector<NodeId> roots;
  for (const Output& out : old.outputs()) roots.push_back(out.from.node);
  Graph graph(old.sample_precision());
  NewValues new_value(old.size());
  for (const NodeId id : old.nodes_behind(roots)) {
    graph.begin_stage(old.stages()[old[id].stage]);
    new_value[id] = copy_node(old, id, graph, new_value);
  }
  for (const Output& out : old.outputs()) {
    graph.output(out.element, new_value[out.from.node], out.from.index);
  }
  return graph;
}

Graph renumber_elements(const Graph& old, const std::function<int(int)>& source,
                        const std::function<int(int)>& destination) {
  const auto make = [&](Graph& graph, NodeId id, const NewValues& new_value) {
    return old[id].op == Op::kInput ? graph.input(source(old[id].element))
                                    : copy_node(old, id, graph, new_value);
  };
  return rebuild(old, make, destination);
}

Graph absorb_sign_flips(const Graph& old) {
  const std::vector<int> uses = use_counts(old);
  return rebuild(old, [&](Graph& graph, NodeId id, const NewValues& new_value) {
    const Node& node = old[id];
    if (node.op == Op::kMul || node.op == Op::kFlipSigns) {
      const Node& operand = old[node.a];
      if (node.op == Op::kMul && operand.op == Op::kFlipSigns) {
        return graph.mul(flipped(old.factors(node), operand.flips), new_value[operand.a]);
      }
      if (node.op == Op::kFlipSigns && operand.op == Op::kMul && uses[node.a] == 1) {
        return graph.mul(flipped(old.factors(operand), node.flips), new_value[operand.a]);
      }
    }
    return copy_node(old, id, graph, new_value);
  });
}

Graph absorb_lane_signs(const Graph& old) {
  const std::vector<int> uses = use_counts(old);
  return rebuild(old, [&](Graph& graph, NodeId id, const NewValues& new_value) {
    const Node& node = old[id];
    const bool is_mixed = node.op == Op::kAdd && node.flips != 0 && !subtracts_even_lanes(node);
    const NodeId source = is_mixed ? node.b : node.a;
    if ((is_mixed || node.op == Op::kFlipSigns) && uses[source] == 1) {
      const Node& turned = old[source];
      const Value operand = turned.a == kNoNode ? Value{} : new_value[turned.a];
      const bool is_product = turned.op == Op::kMul;
      if (is_product || turned.op == Op::kScale) {
        const Value value = is_product
                                ? graph.mul(flipped(old.factors(turned), node.flips), operand)
                                : graph.scale(operand, turned.flips ^ node.flips);
        return is_mixed ? graph.add(new_value[node.a], value) : value;
      }
    }
    return copy_node(old, id, graph, new_value);
  });
}

}  // namespace gen
