#include "gen/graph.h"

#include <algorithm>
#include <cassert>

namespace gen {

Value Graph::input(int element) {
  Node node;
  node.op = Op::kInput;
  node.precision = sample_;
  node.element = element;
  return {intern(node)};
}

Value Graph::fetch(int array, int element, int lane_count) {
  Node node;
  node.op = Op::kFetch;
  node.precision = sample_;
  node.lane_count = lane_count;
  node.array = array;
  node.element = element;
  return {intern(node)};
}

Value Graph::zero(Precision precision, int lane_count, unsigned flips) {
  Node node;
  node.op = Op::kZero;
  node.precision = precision;
  node.lane_count = lane_count;
  node.flips = flips;
  return {intern(node)};
}

Value Graph::lanes(const std::vector<Lane>& picks) {
  Node node;
  node.op = Op::kLanes;
  node.lane_count = static_cast<int>(picks.size());
  std::copy(picks.begin(), picks.end(), node.picks.begin());
  const auto first = std::find_if(picks.begin(), picks.end(),
                                  [](const Lane& pick) { return pick.node != kNoNode; });
  assert(first != picks.end());
  const Node& source = nodes_[first->node];
  node.precision = source.precision;
  // All lanes of one node, each in its own place: that node itself.
  bool whole = source.lane_count == node.lane_count;
  for (int lane = 0; lane < node.lane_count; ++lane) {
    whole = whole && (picks[lane].node == kNoNode || picks[lane] == Lane{first->node, lane});
  }
  return {whole ? first->node : intern(node)};
}

Value Graph::flip_signs(Value a, unsigned flips) {
  const unsigned all = (1u << nodes_[a.node].lane_count) - 1;
  flips &= all;
  if (flips == 0) return a;
  if (flips == all) return -a;
  Node node = shaped_like(a.node);
  node.op = Op::kFlipSigns;
  node.a = a.node;
  node.flips = flips;
  return {intern(node), a.negative};
}

Value Graph::add(Value a, Value b) {
  assert(nodes_[a.node].precision == nodes_[b.node].precision);
  assert(nodes_[a.node].lane_count == nodes_[b.node].lane_count);
  Node node = shaped_like(a.node);
  if (a.negative != b.negative) {
    node.op = Op::kSub;
    node.a = a.negative ? b.node : a.node;
    node.b = a.negative ? a.node : b.node;
    return {intern(node)};
  }
  node.op = Op::kAdd;
  node.a = a.node;
  node.b = b.node;
  return {intern(node), a.negative};
}

Value Graph::add_or_subtract(Value a, Value b, unsigned subtracted) {
  assert(!a.negative && !b.negative);
  if (subtracted == 0) return add(a, b);
  if (subtracted == (1u << nodes_[a.node].lane_count) - 1) return sub(a, b);
  Node node = shaped_like(a.node);
  node.op = Op::kAdd;
  node.a = a.node;
  node.b = b.node;
  node.flips = subtracted;
  return {intern(node)};
}

Value Graph::mul(const Factors& factors, Value a) {
  assert(static_cast<int>(factors.size()) == nodes_[a.node].lane_count);
  Node node = shaped_like(a.node);
  node.op = Op::kMul;
  node.a = a.node;
  for (int lane = 0; lane < node.lane_count; ++lane) {
    node.factors[lane] = number_index(factors[lane]);
  }
  return {intern(node), a.negative};
}

Value Graph::mul(const Number& factor, Value a) {
  const Value product = mul(Factors(nodes_[a.node].lane_count, factor.magnitude()), a);
  return factor.is_negative() ? -product : product;
}

Value Graph::product(Value a, Value b) {
  assert(nodes_[a.node].precision == nodes_[b.node].precision);
  assert(nodes_[a.node].lane_count == nodes_[b.node].lane_count);
  Node node = shaped_like(a.node);
  node.op = Op::kProduct;
  node.a = a.node;
  node.b = b.node;
  return {intern(node), a.negative != b.negative};
}

Value Graph::unary(Op op, Value a, Precision precision) {
  Node node = shaped_like(a.node);
  node.op = op;
  node.precision = precision;
  node.a = a.node;
  return {intern(node), a.negative};
}

Value Graph::scale(Value a, unsigned flips) {
  Node node = shaped_like(a.node);
  node.op = Op::kScale;
  node.a = a.node;
  node.flips = flips;
  return {intern(node), a.negative};
}
Value Graph::settle_sign(Value a) {
  return a.negative ? unary(Op::kFromZero, -a, nodes_[a.node].precision) : a;
}
Value Graph::widen(Value a) { return unary(Op::kWiden, a, Precision::kDouble); }
Value Graph::round(Value a) { return unary(Op::kRound, a, Precision::kSingle); }

Value Graph::settle_flip(Value a) {
  if (!a.negative) return a;
  Node node = shaped_like(a.node);
  node.op = Op::kFlipSigns;
  node.a = a.node;
  node.flips = (1u << node.lane_count) - 1;
  return {intern(node)};
}

void Graph::output(int element, Value value, int lane) {
  outputs_.push_back({element, {settle_flip(value).node, lane}});
}

void Graph::begin_stage(const Stage& stage) {
  const auto known = std::find(stages_.begin(), stages_.end(), stage);
  stage_ = static_cast<int>(known - stages_.begin());
  if (known == stages_.end()) stages_.push_back(stage);
}

Factors Graph::factors(const Node& node) const {
  Factors result;
  for (int lane = 0; lane < node.lane_count; ++lane) result.push_back(factor(node, lane));
  return result;
}

std::vector<NodeId> Graph::operands(NodeId id) const {
  const Node& node = nodes_[id];
  std::vector<NodeId> result;
  const auto take = [&](NodeId operand) {
    if (operand != kNoNode && std::find(result.begin(), result.end(), operand) == result.end()) {
      result.push_back(operand);
    }
  };
  if (node.op == Op::kLanes) {
    for (int lane = 0; lane < node.lane_count; ++lane) take(node.picks[lane].node);
  } else {
    take(node.a);
    take(node.b);
  }
  return result;
}

std::vector<bool> Graph::live_nodes() const {
  std::vector<bool> live(nodes_.size());
  for (const Output& out : outputs_) live[out.from.node] = true;
  for (NodeId id = size() - 1; id >= 0; --id) {
    if (!live[id]) continue;
    for (NodeId operand : operands(id)) live[operand] = true;
  }
  return live;
}

std::vector<NodeId> Graph::nodes_behind(const std::vector<NodeId>& roots) const {
  std::vector<NodeId> order;
  std::vector<bool> seen(nodes_.size());
  const auto visit = [&](const auto& self, NodeId id) -> void {
    if (seen[id]) return;
    seen[id] = true;
    const std::vector<NodeId> before = operands(id);
    for (auto operand = before.rbegin(); operand != before.rend(); ++operand) self(self, *operand);
    order.push_back(id);
  };
  for (const NodeId root : roots) visit(visit, root);
  return order;
}

Node Graph::shaped_like(NodeId id) const {
  Node node;
  node.precision = nodes_[id].precision;
  node.lane_count = nodes_[id].lane_count;
  return node;
}

// FNV-1a.
std::size_t Graph::KeyHash::operator()(const Key& key) const {
  std::size_t hash = 0xcbf29ce484222325;
  for (const int part : key) hash = (hash ^ static_cast<unsigned>(part)) * 0x100000001b3;
  return hash;
}

NodeId Graph::intern(Node node) {
  NodeId a = node.a, b = node.b;
  const bool commutes = (node.op == Op::kAdd && node.flips == 0) || node.op == Op::kProduct;
  if (commutes && a > b) std::swap(a, b);
  Key key;
  key.reserve(3 + 2 * kMaxLanes);
  key = {static_cast<int>(node.op), static_cast<int>(node.precision), node.lane_count};
  switch (node.op) {
    case Op::kInput:
      key.push_back(node.element);
      break;
    case Op::kFetch:
      key.insert(key.end(), {node.array, node.element});
      break;
    case Op::kLanes:
      for (int lane = 0; lane < node.lane_count; ++lane) {
        key.insert(key.end(), {node.picks[lane].node, node.picks[lane].index});
      }
      break;
    case Op::kMul:
      for (int lane = 0; lane < node.lane_count; ++lane) key.push_back(node.factors[lane]);
      [[fallthrough]];
    default:
      key.insert(key.end(), {a, b, static_cast<int>(node.flips)});
  }
  const auto [entry, is_new] = known_.try_emplace(std::move(key), size());
  if (is_new) {
    node.stage = stage_;
    nodes_.push_back(node);
  }
  return entry->second;
}

int Graph::number_index(const Number& number) {
  const auto [entry, is_new] =
      known_numbers_.try_emplace(number.bits(), static_cast<int>(numbers_.size()));
  if (is_new) numbers_.push_back(number);
  return entry->second;
}

Value copy_node(const Graph& old, NodeId id, Graph& graph, const NewValues& new_value) {
  const Node& node = old[id];
  const auto operand = [&](NodeId which) { return new_value[which]; };
  switch (node.op) {
    case Op::kInput:
      return graph.input(node.element);
    case Op::kFetch:
      return graph.fetch(node.array, node.element, node.lane_count);
    case Op::kZero:
      return graph.zero(node.precision, node.lane_count, node.flips);
    case Op::kLanes: {
      std::vector<Lane> picks(node.picks.begin(), node.picks.begin() + node.lane_count);
      unsigned flips = 0;
      for (int lane = 0; lane < node.lane_count; ++lane) {
        if (picks[lane].node == kNoNode) continue;
        const Value source = operand(picks[lane].node);
        picks[lane].node = source.node;
        if (source.negative) flips |= 1u << lane;
      }
      return graph.flip_signs(graph.lanes(picks), flips);
    }
    case Op::kFlipSigns:
      return graph.flip_signs(operand(node.a), node.flips);
    case Op::kFromZero:
      return graph.settle_sign(-operand(node.a));
    case Op::kAdd:
      if (node.flips != 0) {
        return graph.add_or_subtract(operand(node.a), operand(node.b), node.flips);
      }
      return graph.add(operand(node.a), operand(node.b));
    case Op::kSub:
      return graph.sub(operand(node.a), operand(node.b));
    case Op::kMul:
      return graph.mul(old.factors(node), operand(node.a));
    case Op::kProduct:
      return graph.product(operand(node.a), operand(node.b));
    case Op::kScale:
      return graph.scale(operand(node.a), node.flips);
    case Op::kWiden:
      return graph.widen(operand(node.a));
    case Op::kRound:
      return graph.round(operand(node.a));
  }
  return {};
}

}  // namespace gen
