#include "gen/count.h"

#include <map>
#include <set>

#include "gen/scalar.h"

namespace gen {
namespace {

class ScalarExpansion {
 public:
  explicit ScalarExpansion(const Graph& graph)
      : graph_(graph), done_(graph.size() * kMaxLanes), scalars_(graph.size() * kMaxLanes) {
    for (const Output& out : graph.outputs()) expand(out.from);
  }

  const Counts& counts() const { return counts_; }

 private:
  Scalar expand(Lane lane) {
    const int slot = lane.node * kMaxLanes + lane.index;
    if (!done_[slot]) {
      scalars_[slot] = compute(graph_[lane.node], lane.index);
      done_[slot] = true;
    }
    return scalars_[slot];
  }

  Scalar compute(const Node& node, int lane) {
    const auto operand = [&](NodeId id) { return expand({id, lane}); };
    switch (node.op) {
      case Op::kInput:
        return unique({static_cast<int>(node.op), node.element}, nullptr);
      case Op::kFetch:
        return unique({static_cast<int>(node.op), node.array, node.element, lane}, nullptr);
      case Op::kZero:
        return {};
      case Op::kLanes:
        return expand(node.picks[lane]);
      case Op::kFlipSigns:
        return node.flips >> lane & 1 ? -operand(node.a) : operand(node.a);
      case Op::kFromZero:
        return -operand(node.a);
      case Op::kAdd:
        return sum(operand(node.a), node.flips >> lane & 1 ? -operand(node.b) : operand(node.b));
      case Op::kSub:
        return sum(operand(node.a), -operand(node.b));
      case Op::kMul:
        return product(node.factors[lane], operand(node.a));
      case Op::kProduct:
        return product(operand(node.a), operand(node.b));
      case Op::kScale:
      case Op::kWiden:
      case Op::kRound: {
        const Scalar a = operand(node.a);
        Scalar result = unique({static_cast<int>(node.op), a.id}, nullptr);
        result.negative = a.negative;
        return result;
      }
    }
    return {};
  }

  Scalar sum(Scalar a, Scalar b) {
    if (a.id == 0) return b;
    if (b.id == 0) return a;
    if (b < a) std::swap(a, b);
    Scalar result = unique({static_cast<int>(Op::kAdd), a.id, b.id, a.negative != b.negative},
                           &counts_.additions);
    result.negative = a.negative;
    return result;
  }

  Scalar product(int factor, Scalar a) {
    const Number& number = graph_.numbers()[factor];
    if (number.value() == 0 || a.id == 0) return {};
    if (number.value() == 1) return a;
    if (number.value() == -1) return -a;
    Scalar result = unique({static_cast<int>(Op::kMul), factor, a.id}, &counts_.multiplications);
    result.negative = a.negative;
    return result;
  }

  Scalar product(Scalar a, Scalar b) {
    if (a.id == 0 || b.id == 0) return {};
    if (b < a) std::swap(a, b);
    Scalar result = unique({static_cast<int>(Op::kProduct), a.id, b.id}, &counts_.multiplications);
    result.negative = a.negative != b.negative;
    return result;
  }

  Scalar unique(const std::vector<int>& key, int* counter) {
    const auto [entry, is_new] = known_.try_emplace(key, static_cast<int>(known_.size()) + 1);
    if (is_new && counter != nullptr) ++*counter;
    return {entry->second};
  }

  const Graph& graph_;
  std::map<std::vector<int>, int> known_;
  std::vector<bool> done_;
  std::vector<Scalar> scalars_;
  Counts counts_;
};

}  // namespace

Counts count_operations(const Graph& graph) { return ScalarExpansion(graph).counts(); }

namespace {

// Whether the lane is zero whatever the input.
bool is_zero(const Graph& graph, Lane lane) {
  const Node& node = graph[lane.node];
  switch (node.op) {
    case Op::kZero:
      return true;
    case Op::kLanes:
      return is_zero(graph, node.picks[lane.index]);
    case Op::kFlipSigns:
    case Op::kFromZero:
    case Op::kMul:
      return is_zero(graph, {node.a, lane.index});
    case Op::kAdd:
    case Op::kSub:
      return is_zero(graph, {node.a, lane.index}) && is_zero(graph, {node.b, lane.index});
    case Op::kProduct:
      return is_zero(graph, {node.a, lane.index}) || is_zero(graph, {node.b, lane.index});
    default:
      return false;
  }
}

}  // namespace

Counts count_carried_operations(const Graph& graph) {
  std::set<Lane> live;
  for (const Output& out : graph.outputs()) live.insert(out.from);
  Counts counts;
  // Lanes are ordered by node, so every reader of a lane stands behind it.
  while (!live.empty()) {
    const Lane lane = *live.rbegin();
    live.erase(lane);
    if (is_zero(graph, lane)) continue;
    const Node& node = graph[lane.node];
    if (node.op == Op::kLanes) {
      live.insert(node.picks[lane.index]);
      continue;
    }
    counts.additions += node.op == Op::kAdd || node.op == Op::kSub;
    counts.multiplications += node.op == Op::kProduct;
    counts.multiplications += node.op == Op::kMul && !(graph.factor(node, lane.index) == Number(1));
    for (NodeId operand : graph.operands(lane.node)) live.insert({operand, lane.index});
  }
  return counts;
}

}  // namespace gen
