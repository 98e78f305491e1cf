// What SSE has for moving lanes.
#include <algorithm>

#include "gen/moves.h"
#include "gen/moves_128.h"

namespace gen {
namespace {

// Whether the lanes from `first` on are open or zero.
bool is_blank(const Graph& graph, const Node& node, int first) {
  return std::all_of(
      node.picks.begin() + first, node.picks.begin() + node.lane_count,
      [&](const Lane& lane) { return is_open(lane) || graph[lane.node].op == Op::kZero; });
}

// A load by itself: a whole vector, half of one, alone or twice, or two halves.
std::optional<Move> single_load(const Graph& graph, const Node& node) {
  const int width = node.lane_count, half = width / 2;
  const auto load = [](const std::string& function, const std::vector<int>& elements) {
    return Move{function, {}, elements, function == "load", Port::kFree};
  };
  const auto low = memory_run(graph, node, 0, half);
  if (!low) return std::nullopt;
  if (memory_run(graph, node, 0, width)) return load("load", {*low});
  if (is_blank(graph, node, half)) return load("load_low", {*low});
  const auto high = memory_run(graph, node, half, half);
  if (high == low) return load("load_twice", {*low});
  if (high) return load("load_halves", {*low, *high});
  return std::nullopt;
}

// Lanes first, first + 1 of two vectors in turn.
bool is_interleaved(const Node& node, int first) {
  if (node.lane_count != 4) return false;
  for (int lane = 0; lane < 4; ++lane) {
    if (is_open(node.picks[lane]) || node.picks[lane].index != first + lane / 2) return false;
  }
  return node.picks[0].node == node.picks[2].node && node.picks[1].node == node.picks[3].node;
}

std::string with_indices(const std::string& function, const std::vector<int>& indices) {
  std::string text;
  for (const int index : indices) text += (text.empty() ? "" : ", ") + std::to_string(index);
  return function + "<" + text + ">";
}

// Low half picked from one vector, high half from one.
std::optional<Move> single_shuffle(const Node& node) {
  const int width = node.lane_count, half = width / 2;
  std::array<NodeId, 2> sources = {kNoNode, kNoNode};
  std::vector<int> indices;
  for (int lane = 0; lane < width; ++lane) {
    const Lane& pick = node.picks[lane];
    indices.push_back(is_open(pick) ? lane : pick.index);
    if (is_open(pick)) continue;
    NodeId& source = sources[lane / half];
    if (source != kNoNode && source != pick.node) return std::nullopt;
    source = pick.node;
  }
  const NodeId low = sources[0] == kNoNode ? sources[1] : sources[0];
  const NodeId high = sources[1] == kNoNode ? sources[0] : sources[1];
  return Move{with_indices("shuffle", indices), {low, high}, {}};
}

std::optional<Move> single_lane(const Graph& graph, const Lane& pick) {
  if (graph[pick.node].lane_count > 4) return std::nullopt;
  const Port port = pick.index == 0 ? Port::kFree : Port::kShuffle;
  return Move{with_indices("lane", {pick.index}), {pick.node}, {}, false, port};
}

// Two lanes of any two values.
std::optional<Move> joined(const Node& node) {
  const auto [low, high] = std::pair(node.picks[0], node.picks[1]);
  if (is_open(low) || is_open(high)) return std::nullopt;
  const bool single = node.precision == Precision::kSingle;
  return Move{with_indices(single ? "join_floats" : "join_doubles", {low.index, high.index}),
              {low.node, high.node},
              {}};
}

// Two lanes of single precision, which are half of a vector.
std::optional<Move> pair_of(const Graph& graph, const Node& node) {
  const auto [low, high] = std::pair(node.picks[0], node.picks[1]);
  if (is_open(low) || is_open(high)) return std::nullopt;
  if (const auto element = memory_run(graph, node, 0, 2)) {
    return Move{"load_low", {}, {*element}, false, Port::kFree};
  }
  if (is_memory(graph, low) && is_memory(graph, high)) {
    return Move{"load_lanes", {}, {graph[low.node].element, graph[high.node].element}};
  }
  if (low.node == high.node && graph[low.node].lane_count == 1) return Move{"allF2", {low.node}, {}};
  if (low.node == high.node) {
    const bool in_place = low.index == 0 && high.index == 1;
    return Move{with_indices("shuffle", {low.index, high.index, low.index, high.index}),
                {low.node, low.node},
                {},
                false,
                in_place ? Port::kFree : Port::kShuffle};
  }
  auto move = joined(node);
  if (low.index != 0 || high.index != 0) move->instructions = 2;
  return move;
}

}  // namespace

std::optional<Move> SseMoves::single_move(const Graph& graph, NodeId lanes) const {
  const Node& node = graph[lanes];
  if (node.lane_count == 1) return single_lane(graph, node.picks[0]);
  if (node.lane_count == 2 && node.precision == Precision::kSingle) return pair_of(graph, node);
  if (const auto load = single_load(graph, node)) return load;
  bool scalars = false;
  for (int lane = 0; lane < node.lane_count; ++lane) {
    scalars =
        scalars || (!is_open(node.picks[lane]) && graph[node.picks[lane].node].lane_count == 1);
  }
  if (scalars) return node.lane_count == 2 ? joined(node) : std::nullopt;
  if (const auto shuffle = single_shuffle(node)) return shuffle;
  const std::vector<NodeId> first_two = {node.picks[0].node, node.picks[1].node};
  if (is_interleaved(node, 0)) return Move{"unpack_low", first_two, {}};
  if (is_interleaved(node, 2)) return Move{"unpack_high", first_two, {}};
  return std::nullopt;
}

const MoveSet& sse_moves() {
  static const SseMoves moves;
  return moves;
}

}  // namespace gen
