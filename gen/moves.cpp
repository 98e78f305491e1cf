#include "gen/moves.h"

#include <algorithm>
#include <cassert>
#include <map>
#include <set>

namespace gen {
namespace {

using Picks = std::array<Lane, kMaxLanes>;

bool is_open(const Lane& lane) { return lane.node == kNoNode; }

// Whether the lanes from `first` on are open or zero.
bool is_blank(const Graph& graph, const Node& node, int first) {
  return std::all_of(
      node.picks.begin() + first, node.picks.begin() + node.lane_count,
      [&](const Lane& lane) { return is_open(lane) || graph[lane.node].op == Op::kZero; });
}

bool is_memory(const Graph& graph, const Lane& lane) {
  return !is_open(lane) && graph[lane.node].op == Op::kInput;
}

// The first of `count` consecutive elements of the source that stand in lanes from `first` on.
std::optional<int> memory_run(const Graph& graph, const Node& node, int first, int count) {
  if (!is_memory(graph, node.picks[first])) return std::nullopt;
  const int element = graph[node.picks[first].node].element;
  for (int i = 1; i < count; ++i) {
    const Lane& pick = node.picks[first + i];
    if (!is_memory(graph, pick) || graph[pick.node].element != element + i) return std::nullopt;
  }
  return element;
}

// A load by itself: a whole vector, half of one, alone or twice, or two halves.
std::optional<MoveForm> single_load(const Graph& graph, const Node& node) {
  const int width = node.lane_count, half = width / 2;
  MoveForm form{};
  const auto low = memory_run(graph, node, 0, half);
  if (!low) return std::nullopt;
  form.element = *low;
  if (memory_run(graph, node, 0, width)) {
    form.move = Move::kLoad;
  } else if (is_blank(graph, node, half)) {
    form.move = Move::kLoadLow;
  } else if (memory_run(graph, node, half, half) == low) {
    form.move = Move::kLoadTwice;
  } else if (const auto high = memory_run(graph, node, half, half)) {
    form.move = Move::kLoadHalves;
    form.high_element = *high;
  } else {
    return std::nullopt;
  }
  return form;
}

// Lanes first, first + 1 of two vectors in turn.
bool is_interleaved(const Picks& picks, int first) {
  for (int lane = 0; lane < kMaxLanes; ++lane) {
    if (is_open(picks[lane]) || picks[lane].index != first + lane / 2) return false;
  }
  return picks[0].node == picks[2].node && picks[1].node == picks[3].node;
}

bool is_mixed(const Picks& picks, int first) {
  return !is_open(picks[first]) && !is_open(picks[first + 1]) &&
         picks[first].node != picks[first + 1].node;
}

// Two lanes of two vectors that one half of a third takes, whatever their order.
struct Need {
  Lane low, high;
  Need(const Picks& picks, int first) : low(picks[first]), high(picks[first + 1]) {
    if (high.node < low.node) std::swap(low, high);
  }
  friend auto operator<=>(const Need&, const Need&) = default;
};

// The shuffle that serves a need, and the lane that it puts `low` in; `high` is two lanes above.
struct Helper {
  std::vector<Lane> picks;
  int low_lane;
};

std::map<Need, Helper> pair_needs(const Graph& graph) {
  const std::vector<bool> live = graph.live_nodes();
  std::map<std::pair<NodeId, NodeId>, std::set<Need>> needs;
  for (NodeId id = 0; id < graph.size(); ++id) {
    if (!live[id] || graph[id].op != Op::kLanes || single_move(graph, id)) continue;
    for (int first : {0, 2}) {
      if (!is_mixed(graph[id].picks, first)) continue;
      const Need need(graph[id].picks, first);
      needs[{need.low.node, need.high.node}].insert(need);
    }
  }
  std::map<Need, Helper> helpers;
  for (const auto& [vectors, wanted] : needs) {
    // Even lanes go together, and odd lanes: such a shuffle stays what it is under any compiler,
    // while one of halves may become a move that only one port takes.
    std::vector<Need> order(wanted.begin(), wanted.end());
    std::stable_sort(order.begin(), order.end(), [](const Need& x, const Need& y) {
      return x.low.index % 2 < y.low.index % 2;
    });
    for (std::size_t i = 0; i < order.size(); i += 2) {
      const Need& first = order[i];
      const Need& second = i + 1 < order.size() ? order[i + 1] : first;
      const std::vector<Lane> picks = {first.low, second.low, first.high, second.high};
      helpers[second] = {picks, 1};
      helpers[first] = {picks, 0};
    }
  }
  return helpers;
}

}  // namespace

std::optional<MoveForm> single_move(const Graph& graph, NodeId lanes) {
  const Node& node = graph[lanes];
  const int width = node.lane_count, half = width / 2;
  if (const auto load = single_load(graph, node)) return load;
  MoveForm form{};
  std::array<NodeId, 2> sources = {kNoNode, kNoNode};
  bool shuffle = true;
  for (int lane = 0; lane < width; ++lane) {
    const Lane& pick = node.picks[lane];
    if (is_memory(graph, pick)) return std::nullopt;
    form.indices[lane] = is_open(pick) ? lane : pick.index;
    if (is_open(pick)) continue;
    NodeId& source = sources[lane / half];
    if (source != kNoNode && source != pick.node) shuffle = false;
    source = pick.node;
  }
  if (shuffle) {
    form.move = Move::kShuffle;
    form.a = sources[0] == kNoNode ? sources[1] : sources[0];
    form.b = sources[1] == kNoNode ? sources[0] : sources[1];
    return form;
  }
  for (const auto& [move, first] :
       {std::pair(Move::kUnpackLow, 0), std::pair(Move::kUnpackHigh, 2)}) {
    if (!is_interleaved(node.picks, first)) continue;
    form.move = move;
    form.a = node.picks[0].node;
    form.b = node.picks[1].node;
    return form;
  }
  return std::nullopt;
}

Graph load_vectors(const Graph& old, int source_length, bool by_halves) {
  const auto stays = [&](const MoveForm& load) {
    return load.move == Move::kLoadHalves ? by_halves : load.move != Move::kLoad;
  };
  return rebuild(old, [&](Graph& graph, NodeId id, const NewValues& new_value) {
    const Node& node = old[id];
    const int width = node.lane_count;
    const auto load = node.op == Op::kLanes ? single_load(old, node) : std::nullopt;
    if (node.op != Op::kLanes || (load && stays(*load))) {
      return copy_node(old, id, graph, new_value);
    }
    std::vector<Lane> picks;
    for (int lane = 0; lane < width; ++lane) {
      Lane pick = node.picks[lane];
      if (is_memory(old, pick)) {
        const int element = old[pick.node].element, first = element - element % width;
        std::vector<Lane> vector(width);
        for (int i = 0; i < width && first + i < source_length; ++i) {
          vector[i] = {graph.input(first + i).node, 0};
        }
        pick = {graph.lanes(vector).node, element % width};
      } else if (!is_open(pick)) {
        assert(!new_value[pick.node].negative);
        pick.node = new_value[pick.node].node;
      }
      picks.push_back(pick);
    }
    return graph.lanes(picks);
  });
}

Graph synthesize_shuffles(const Graph& old) {
  const std::map<Need, Helper> helpers = pair_needs(old);
  return rebuild(old, [&](Graph& graph, NodeId id, const NewValues& new_value) {
    const Node& node = old[id];
    if (node.op != Op::kLanes || single_move(old, id)) {
      return copy_node(old, id, graph, new_value);
    }
    const auto translated = [&](std::vector<Lane> picks) {
      for (Lane& pick : picks) {
        if (is_open(pick)) continue;
        assert(!new_value[pick.node].negative);
        pick.node = new_value[pick.node].node;
      }
      return picks;
    };
    std::vector<Lane> picks = translated({node.picks.begin(), node.picks.end()});
    for (int first : {0, 2}) {
      if (!is_mixed(node.picks, first)) continue;
      const Need need(node.picks, first);
      const Helper& helper = helpers.at(need);
      const NodeId joined = graph.lanes(translated(helper.picks)).node;
      const bool in_order = need.low == node.picks[first];
      picks[first] = {joined, helper.low_lane + (in_order ? 0 : 2)};
      picks[first + 1] = {joined, helper.low_lane + (in_order ? 2 : 0)};
    }
    return graph.lanes(picks);
  });
}

}  // namespace gen
