#include "gen/moves.h"

#include <algorithm>
#include <cassert>
#include <map>
#include <set>
#include <stdexcept>

namespace gen {

bool is_memory(const Graph& graph, const Lane& lane) {
  return !is_open(lane) && graph[lane.node].op == Op::kInput;
}

std::optional<int> memory_run(const Graph& graph, const Node& node, int first, int count) {
  if (!is_memory(graph, node.picks[first])) return std::nullopt;
  const int element = graph[node.picks[first].node].element;
  for (int i = 1; i < count; ++i) {
    const Lane& pick = node.picks[first + i];
    if (!is_memory(graph, pick) || graph[pick.node].element != element + i) return std::nullopt;
  }
  return element;
}

const MoveSet& moves_called(const std::string& name) {
  if (name == "sse") return sse_moves();
  if (name == "avx2") return avx2_moves();
  throw std::invalid_argument("no moves are called " + name);
}

namespace {

using Picks = std::array<Lane, kMaxLanes>;

// Lanes of 128 bits that no single move brings together.
bool is_unserved(const Graph& graph, NodeId id) {
  const Node& node = graph[id];
  return node.op == Op::kLanes && bits_of(node) <= 128 && !sse_moves().single_move(graph, id);
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
    if (!live[id] || !is_unserved(graph, id)) continue;
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

Graph load_vectors(const Graph& old, int source_length, bool by_halves) {
  const auto stays = [&](const Move& load) {
    return load.elements.size() == 2 ? by_halves : !load.is_whole_load;
  };
  return rebuild(old, [&](Graph& graph, NodeId id, const NewValues& new_value) {
    const Node& node = old[id];
    const int width = node.lane_count;
    const auto load = node.op == Op::kLanes ? sse_moves().single_move(old, id) : std::nullopt;
    if (node.op != Op::kLanes || (load && !load->elements.empty() && stays(*load))) {
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
    if (!is_unserved(old, id)) return copy_node(old, id, graph, new_value);
    const auto translated = [&](std::vector<Lane> picks) {
      for (Lane& pick : picks) {
        if (is_open(pick)) continue;
        assert(!new_value[pick.node].negative);
        pick.node = new_value[pick.node].node;
      }
      return picks;
    };
    std::vector<Lane> picks =
        translated({node.picks.begin(), node.picks.begin() + node.lane_count});
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
