#include "gen/pack.h"

#include <algorithm>
#include <map>
#include <stdexcept>

#include "gen/rewrite.h"
#include "gen/schedule.h"

namespace gen {
namespace {

// Lanes that nobody reads, filled so that a move stays what it is.
std::vector<Lane> filled_picks(const Node& node) {
  std::vector<Lane> picks(node.picks.begin(), node.picks.begin() + node.lane_count);
  const auto first =
      std::find_if(picks.begin(), picks.end(), [](const Lane& pick) { return !is_open(pick); });
  const int half = std::max(1, node.lane_count / 2);
  for (int lane = 0; lane < node.lane_count; ++lane) {
    if (!is_open(picks[lane])) continue;
    const auto begin = picks.begin() + lane / half * half;
    const auto near = std::find_if(begin, begin + half, [](const Lane& p) { return !is_open(p); });
    picks[lane] = {near == begin + half ? first->node : near->node, lane};
  }
  return picks;
}

unsigned all_lanes(int lane_count) { return (1u << lane_count) - 1; }

// The lanes of b that a sum subtracts.
unsigned subtracted(const Node& node) {
  return node.op == Op::kSub ? all_lanes(node.lane_count) : node.flips;
}

}  // namespace

PackNode pack_node(const Graph& graph, NodeId id) {
  const bool is_identity = id >= kIdentity;
  PackNode result;
  if (is_identity) id -= kIdentity;
  const Node& node = graph[id];
  const int precision = static_cast<int>(node.precision);
  if (is_identity) {
    const bool fits = node.op != Op::kFromZero && !is_load(graph, id);
    if (fits) result.kind = {static_cast<int>(Op::kFromZero), precision, node.lane_count};
    result.slots = {id};
    return result;
  }
  result.is_load = is_load(graph, id);
  if (result.is_load) return result;
  const Op op = node.op == Op::kSub ? Op::kAdd : node.op;
  result.kind = {static_cast<int>(op), precision, node.lane_count};
  if (op != Op::kLanes) {
    result.slots = {node.a};
    if (node.b != kNoNode) result.slots.push_back(node.b);
    if (op == Op::kWiden || op == Op::kRound) result.kind.push_back(graph[node.a].lane_count);
    result.commutes = op == Op::kProduct || (node.op == Op::kAdd && node.flips == 0);
    return result;
  }
  result.picks = filled_picks(node);
  for (Lane& pick : result.picks) {
    const auto slot = std::find(result.slots.begin(), result.slots.end(), pick.node);
    if (graph[pick.node].lane_count != node.lane_count) result.kind.clear();
    const int position = static_cast<int>(slot - result.slots.begin());
    if (slot == result.slots.end()) result.slots.push_back(pick.node);
    pick.node = position;
  }
  // No move picks single floats of two vectors in turn.
  const bool two_floats = node.lane_count == 2 && node.precision == Precision::kSingle;
  if (result.kind.empty() || node.lane_count == 1 || (two_floats && result.slots.size() > 1)) {
    return {{}, result.slots, false, false, {}};
  }
  for (const Lane& pick : result.picks) {
    result.kind.push_back(pick.node);
    // Two lanes of 64 bits may be picked in either half in its own way.
    const bool any = node.lane_count == 2 && node.precision == Precision::kDouble;
    result.kind.push_back(any ? 0 : pick.index);
  }
  return result;
}

namespace {

class Packer {
 public:
  Packer(const Graph& old, const Pairing& pairing, const MoveSet& moves)
      : old_(old),
        moves_(moves),
        graph_(old.sample_precision()),
        pair_of_(old.size(), -1),
        pair_of_identity_(old.size(), -1),
        pairs_(pairing),
        packed_(pairing.size(), kNoNode),
        single_(old.size(), kNoNode) {
    if (old.size() > kIdentity) throw std::logic_error("a graph too large to be packed");
    for (std::size_t i = 0; i < pairs_.size(); ++i) check(static_cast<int>(i));
  }

  Graph run() {
    for (const Output& out : old_.outputs()) {
      const NodeId identity = kIdentity + out.from.node;
      const bool is_paired = pair_of(identity) >= 0;
      const Lane place = place_of(is_paired ? identity : out.from.node);
      graph_.output(out.element, {place.node}, place.index + out.from.index);
    }
    return std::move(graph_);
  }

 private:
  [[noreturn]] void fail(const Pair& pair, const std::string& what) const {
    throw std::invalid_argument("the pairing doesn't fit: (" + std::to_string(pair.low) + ", " +
                                std::to_string(pair.high) + ") " + what);
  }

  void check(int index) {
    const Pair& pair = pairs_[index];
    for (const NodeId id : {pair.low, pair.high}) {
      if (id < 0 || id % kIdentity >= old_.size() || id >= 2 * kIdentity)
        fail(pair, "are no nodes");
      if (pair_of(id) >= 0 || pair.low == pair.high) fail(pair, "are paired already");
    }
    const PackNode low = pack_node(old_, pair.low), high = pack_node(old_, pair.high);
    if (low.kind.empty() || low.kind != high.kind) fail(pair, "are of different kinds");
    pair_of(pair.low) = pair_of(pair.high) = index;
  }

  int& pair_of(NodeId id) {
    return id < kIdentity ? pair_of_[id] : pair_of_identity_[id - kIdentity];
  }
  int lane_count(NodeId id) const { return old_[id % kIdentity].lane_count; }

  // Where the lanes of an old node are in the new graph, from the first on.
  Lane place_of(NodeId id) {
    const int pair = pair_of(id);
    if (pair < 0) return {single(id), 0};
    return {packed(pair), id == pairs_[pair].low ? 0 : lane_count(id)};
  }

  std::vector<Lane> lanes_of(NodeId id) {
    const Lane first = place_of(id);
    std::vector<Lane> lanes;
    for (int lane = 0; lane < lane_count(id); ++lane) {
      lanes.push_back({first.node, first.index + lane});
    }
    return lanes;
  }

  // An old node's lanes, and no others, as a node.
  NodeId narrow(NodeId id) { return graph_.lanes(lanes_of(id)).node; }

  NodeId single(NodeId id) {
    if (single_[id] != kNoNode) return single_[id];
    graph_.begin_stage(old_.stages()[old_[id].stage]);
    NewValues operands(id + 1);
    for (const NodeId operand : old_.operands(id)) operands[operand] = {narrow(operand)};
    graph_.begin_stage(old_.stages()[old_[id].stage]);
    return single_[id] = graph_.settle_flip(copy_node(old_, id, graph_, operands)).node;
  }

  NodeId packed(int index) {
    NodeId& result = packed_[index];
    const Pair& pair = pairs_[index];
    if (result == kInProgress) fail(pair, "depend on one another, or close a circle with others");
    if (result != kNoNode) return result;
    result = kInProgress;
    const NodeId node = make(pair);
    return packed_[index] = node;
  }

  // Two old nodes side by side, as an operand of a pair.
  NodeId join(NodeId low, NodeId high) {
    const int pair = pair_of_[low];
    if (pair >= 0 && pairs_[pair] == Pair{low, high}) return packed(pair);
    const auto [known, is_new] = joined_.try_emplace({low, high}, kNoNode);
    if (is_new) {
      const NodeId node = make_join(low, high);
      joined_[{low, high}] = node;
      return node;
    }
    return known->second;
  }

  NodeId make_join(NodeId low, NodeId high) {
    const Node &x = old_[low], &y = old_[high];
    if (x.op == Op::kZero && y.op == Op::kZero) {
      return graph_.zero(x.precision, 2 * x.lane_count, x.flips | y.flips << x.lane_count).node;
    }
    if (is_load(old_, low) && is_load(old_, high)) {
      std::vector<Lane> lanes = elements_of(low);
      const std::vector<Lane> others = elements_of(high);
      lanes.insert(lanes.end(), others.begin(), others.end());
      const NodeId load = graph_.lanes(lanes).node;
      if (moves_.single_move(graph_, load)) return load;
    }
    std::vector<Lane> lanes = lanes_of(low);
    const std::vector<Lane> others = lanes_of(high);
    lanes.insert(lanes.end(), others.begin(), others.end());
    return single_move({low, high}, lanes);
  }

  // The lanes of a load as elements of the source.
  std::vector<Lane> elements_of(NodeId load) {
    const auto copy = [&](NodeId source) {
      const NewValues none;
      return copy_node(old_, source, graph_, none).node;
    };
    if (old_[load].op != Op::kLanes) return {{copy(load), 0}};
    std::vector<Lane> lanes;
    for (int lane = 0; lane < old_[load].lane_count; ++lane) {
      const Lane& pick = old_[load].picks[lane];
      lanes.push_back(is_open(pick) ? pick : Lane{copy(pick.node), pick.index});
    }
    return lanes;
  }

  NodeId single_move(const Pair& pair, const std::vector<Lane>& lanes) {
    const NodeId node = graph_.lanes(lanes).node;
    if (graph_[node].op == Op::kLanes && !moves_.single_move(graph_, node)) {
      fail(pair, "are put side by side by no single move");
    }
    return node;
  }

  NodeId make(const Pair& pair) {
    const PackNode low = pack_node(old_, pair.low), high = pack_node(old_, pair.high);
    // Where operands may change places, as pairs if there are such.
    std::vector<NodeId> mates = high.slots;
    std::vector<NodeId> firsts = low.slots;
    if (firsts.size() == 2 && firsts[0] != firsts[1] && (low.commutes || high.commutes) &&
        pairs_among(firsts, {mates[1], mates[0]}) > pairs_among(firsts, mates)) {
      std::swap(mates[0], mates[1]);
      if (!high.commutes) {
        std::swap(mates[0], mates[1]);
        std::swap(firsts[0], firsts[1]);
      }
    }
    std::vector<NodeId> operands;
    for (std::size_t i = 0; i < firsts.size(); ++i) operands.push_back(join(firsts[i], mates[i]));
    const NodeId model = pair.low < kIdentity ? pair.low : pair.high;
    graph_.begin_stage(old_.stages()[old_[model].stage]);
    if (low.picks.empty()) return operation(pair, operands);
    std::vector<Lane> lanes;
    for (const Lane& pick : low.picks) lanes.push_back({operands[pick.node], pick.index});
    const int count = lane_count(pair.low);
    for (const Lane& pick : high.picks) lanes.push_back({operands[pick.node], count + pick.index});
    return single_move(pair, lanes);
  }

  int pairs_among(const std::vector<NodeId>& low, const std::vector<NodeId>& high) const {
    int count = 0;
    for (std::size_t i = 0; i < low.size(); ++i) {
      const int pair = pair_of_[low[i]];
      const bool loads = is_load(old_, low[i]) && is_load(old_, high[i]);
      count += 2 * (pair >= 0 && pairs_[pair] == Pair{low[i], high[i]}) + loads;
    }
    return count;
  }

  NodeId operation(const Pair& pair, const std::vector<NodeId>& operands) {
    const int count = lane_count(pair.low);
    const Value a{operands[0]};
    if (pair.low >= kIdentity || pair.high >= kIdentity) {
      // x beside 0 - y: (-0, +0) + (x, -y).
      const unsigned low = all_lanes(count), high = low << count;
      const unsigned same = (pair.low >= kIdentity ? low : 0) | (pair.high >= kIdentity ? high : 0);
      const Value zero = graph_.zero(graph_[a.node].precision, 2 * count, same);
      return graph_.add(zero, graph_.flip_signs(a, ~same)).node;
    }
    const Node &low = old_[pair.low], &high = old_[pair.high];
    const unsigned flips = low.flips | high.flips << count;
    switch (low.op) {
      case Op::kAdd:
      case Op::kSub:
        return graph_.add_or_subtract(a, {operands[1]}, subtracted(low) | subtracted(high) << count)
            .node;
      case Op::kFlipSigns:
        return graph_.settle_flip(graph_.flip_signs(a, flips)).node;
      case Op::kFromZero:
        return graph_.settle_sign(-a).node;
      case Op::kMul: {
        Factors factors = old_.factors(low);
        const Factors others = old_.factors(high);
        factors.insert(factors.end(), others.begin(), others.end());
        return graph_.mul(factors, a).node;
      }
      case Op::kProduct:
        return graph_.product(a, {operands[1]}).node;
      case Op::kScale:
        return graph_.scale(a, flips).node;
      case Op::kWiden:
        return graph_.widen(a).node;
      case Op::kRound:
        return graph_.round(a).node;
      default:
        fail(pair, "can't be packed");
    }
  }

  static constexpr NodeId kInProgress = -2;

  const Graph& old_;
  const MoveSet& moves_;
  Graph graph_;
  std::vector<int> pair_of_, pair_of_identity_;  // by old node
  const Pairing& pairs_;
  std::vector<NodeId> packed_, single_;
  std::map<std::pair<NodeId, NodeId>, NodeId> joined_;
};

}  // namespace

Graph pack(const Graph& graph, const Pairing& pairing, const MoveSet& moves) {
  return absorb_lane_signs(Packer(graph, pairing, moves).run());
}

}  // namespace gen
