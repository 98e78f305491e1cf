#include "gen/pack_model.h"

#include "gen/schedule.h"

namespace gen {

std::uint64_t mixed(std::uint64_t a, std::uint64_t b) {
  std::uint64_t x = a * 0x9e3779b97f4a7c15 + b;
  x = (x ^ x >> 32) * 0xd6e8feb86659fd93;
  return x ^ x >> 29;
}

PackModel::PackModel(const Graph& graph) : places(2 * graph.size()) {
  const int size = graph.size();
  const std::vector<bool> live = graph.live_nodes();
  std::vector<bool> is_output(size);
  std::map<NodeId, std::map<int, int>> elements;
  for (const Output& out : graph.outputs()) {
    is_output[out.from.node] = true;
    elements[out.from.node][out.from.index] = out.element;
  }
  std::map<std::vector<int>, int> kinds;
  for (int id = 0; id < 2 * size; ++id) {
    const bool identity = id >= size;
    const NodeId node_id = identity ? id - size : id;
    if (!live[node_id] || (identity && !is_output[node_id])) continue;
    const Node& node = graph[node_id];
    const PackNode pack = pack_node(graph, identity ? node_id + kIdentity : id);
    Place& place = places[id];
    place.is_used = true;
    place.is_output = identity || (is_output[id] && node.op == Op::kFromZero);
    if (is_output[node_id] && !identity && pack_node(graph, id + kIdentity).kind.empty()) {
      place.is_output = true;
    }
    place.op = identity ? Op::kFromZero : node.op;
    place.commutes = pack.commutes;
    place.is_load = pack.is_load;
    place.flips = node.op == Op::kSub ? (1u << node.lane_count) - 1 : node.flips;
    place.lanes = node.lane_count;
    const bool single = node.precision == Precision::kSingle;
    place.wide = node.lane_count * (single ? 32 : 64) == 128;
    place.floats = single && node.lane_count == 1;
    place.two_floats = single && node.lane_count == 2;
    place.slots = pack.slots;
    if (!pack.kind.empty()) {
      place.kind = kinds.try_emplace(pack.kind, static_cast<int>(kinds.size())).first->second;
      pairable.push_back(id);
      of_kind[place.kind].push_back(id);
    }
    for (const int slot : place.slots) places[slot].users.push_back(id);
    if (place.is_load && node.op == Op::kLanes) {
      bool run = true;
      for (int lane = 0; lane < node.lane_count; ++lane) {
        const Lane& pick = node.picks[lane];
        run = run && is_memory(graph, pick) &&
              graph[pick.node].element == graph[node.picks[0].node].element + lane;
      }
      if (run) place.element = graph[node.picks[0].node].element;
    } else if (node.op == Op::kInput) {
      place.element = node.element;
    }
    if (place.is_output) {
      const auto& stored = elements[node_id];
      bool run = static_cast<int>(stored.size()) == node.lane_count;
      for (const auto& [lane, element] : stored) {
        run = run && element == stored.begin()->second + lane;
      }
      if (run) place.stored_at = stored.begin()->second;
    }
  }
  reach.assign(2 * size, std::vector<std::uint64_t>((2 * size + 63) / 64));
  const auto each = [&](auto visit) {
    for (int id = 0; id < 2 * size; ++id) {
      if (places[id].is_used) visit(id);
    }
  };
  each([&](int id) {
    Place& place = places[id];
    place.above = mixed(place.kind + 2, static_cast<int>(place.op));
    for (const int slot : place.slots) {
      place.above = mixed(place.above, place.commutes ? 7 : 0) + mixed(places[slot].above, 3);
      reach[id][slot / 64] |= std::uint64_t{1} << (slot % 64);
      for (std::size_t i = 0; i < reach[id].size(); ++i) reach[id][i] |= reach[slot][i];
    }
  });
  for (int id = 2 * size - 1; id >= 0; --id) {
    places[id].below = mixed(places[id].kind + 2, places[id].is_output);
    for (const int user : places[id].users) places[id].below += mixed(places[user].below, 5);
  }
}

}  // namespace gen
