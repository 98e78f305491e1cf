#include "gen/side_by_side.h"

#include "gen/moves.h"
#include "gen/schedule.h"

namespace gen {
namespace {

// What a load becomes in one half: the same, `distance` elements further on.
std::vector<Lane> moved_load(const Graph& old, const Node& node, int distance, Graph& graph) {
  std::vector<Lane> picks;
  for (int lane = 0; lane < node.lane_count; ++lane) {
    const int element = old[node.picks[lane].node].element + distance;
    picks.push_back({graph.input(element).node, 0});
  }
  const NodeId load = graph.lanes(picks).node;
  for (int lane = 0; lane < node.lane_count; ++lane) picks[lane] = {load, lane};
  return picks;
}

std::vector<Lane> moved_lanes(const Node& node, int first, const NewValues& new_value) {
  std::vector<Lane> picks;
  for (int lane = 0; lane < node.lane_count; ++lane) {
    const Lane& pick = node.picks[lane];
    picks.push_back(is_open(pick) ? pick : Lane{new_value[pick.node].node, pick.index + first});
  }
  return picks;
}

}  // namespace

Graph side_by_side(const Graph& old, int distance) {
  return rebuild(old, [&](Graph& graph, NodeId id, const NewValues& new_value) -> Value {
    const Node& node = old[id];
    const int width = node.lane_count;
    switch (node.op) {
      case Op::kInput:
        return {};  // part of a load
      case Op::kFetch:
        return graph.fetch(node.array, node.element, 2 * width);
      case Op::kZero:
        return graph.zero(node.precision, 2 * width);
      case Op::kFlipSigns:
        return graph.flip_signs(new_value[node.a], node.flips | node.flips << width);
      case Op::kMul: {
        Factors factors = old.factors(node);
        factors.insert(factors.end(), factors.begin(), factors.begin() + width);
        return graph.mul(factors, new_value[node.a]);
      }
      case Op::kLanes: {
        std::vector<Lane> picks;
        for (const int half : {0, 1}) {
          const std::vector<Lane> moved = is_load(old, id)
                                              ? moved_load(old, node, half * distance, graph)
                                              : moved_lanes(node, half * width, new_value);
          picks.insert(picks.end(), moved.begin(), moved.end());
        }
        return graph.lanes(picks);
      }
      default:
        return copy_node(old, id, graph, new_value);
    }
  });
}

}  // namespace gen
