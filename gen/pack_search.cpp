#include "gen/pack_search.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <map>
#include <random>

#include "gen/schedule.h"

namespace gen {
namespace {

// A graph as the search sees it: nodes 0 to size() - 1, then their identities.
struct PackModel {
  struct Place {
    int kind = -1;  // nodes of equal kind may pair
    std::vector<int> slots, users;
    Op op = Op::kInput;
    bool commutes = false, is_load = false, is_used = false, is_output = false;
    bool wide = false;    // paired, it takes 256 bits
    bool floats = false;  // paired, it is two floats
    unsigned flips = 0;
    int lanes = 1;
    int element = -1;    // a load: the first element, if they are consecutive
    int stored_at = -1;  // an output: the first element, if they are consecutive
    int reads = 0;
    std::uint64_t above = 0, below = 0;  // hashes of what it depends on, and of what depends on it
  };
  std::vector<Place> places;
  std::vector<int> pairable;
  std::map<int, std::vector<int>> of_kind;
  std::vector<std::vector<std::uint64_t>> reach;  // bit v of row u: u depends on v

  explicit PackModel(const Graph& graph);
  bool depends(int u, int v) const { return reach[u][v / 64] >> (v % 64) & 1; }
  bool can_pair(int u, int v) const {
    return u != v && places[u].kind >= 0 && places[u].kind == places[v].kind && !depends(u, v) &&
           !depends(v, u) &&
           !(places[u].kind == places[v].kind && is_identity(u) && is_identity(v));
  }
  bool is_identity(int u) const { return 2 * u >= static_cast<int>(places.size()); }
};

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
    place.slots = pack.slots;
    if (!pack.kind.empty()) {
      place.kind = kinds.try_emplace(pack.kind, static_cast<int>(kinds.size())).first->second;
      pairable.push_back(id);
      of_kind[place.kind].push_back(id);
    }
    for (const int slot : place.slots) {
      places[slot].users.push_back(id);
      ++places[slot].reads;
    }
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

class Annealer {
 public:
  Annealer(const Graph& graph, const PairingSearch& search)
      : model_(graph),
        search_(search),
        random_(search.seed),
        mate_(model_.places.size(), -1),
        is_low_(model_.places.size()),
        depth_(model_.places.size()),
        state_(model_.places.size()) {}

  FoundPairing run() {
    FoundPairing found;
    long current = cost();
    found.cost = found.cost_unpaired = current;
    if (model_.pairable.empty()) return found;
    std::vector<int> best_mate = mate_;
    std::vector<char> best_low = is_low_;
    const long first = std::max(1L, current / 50);
    for (int move = 0; move < search_.moves; ++move) {
      // Cools down by the square of what is left.
      const long left = search_.moves - move, all = search_.moves;
      const long heat = first * left / all * left / all;
      changes_.clear();
      change();
      const long next = changes_.empty() ? -1 : cost();
      if (next < 0 || (next > current && next - current > heat * minus_log())) {
        undo();
        continue;
      }
      current = next;
      if (current < found.cost) {
        found.cost = current;
        best_mate = mate_;
        best_low = is_low_;
      }
    }
    for (int id = 0; id < static_cast<int>(best_mate.size()); ++id) {
      if (best_mate[id] < 0 || !best_low[id]) continue;
      const auto name = [&](int place) {
        const int size = static_cast<int>(best_mate.size()) / 2;
        return place < size ? place : place - size + kIdentity;
      };
      found.pairing.push_back({name(id), name(best_mate[id])});
    }
    return found;
  }

 private:
  int below(int count) { return static_cast<int>(random_() % static_cast<unsigned>(count)); }
  // -log of a number between 0 and 1, in whole numbers 0 to 7.
  long minus_log() {
    const std::uint32_t x = random_();
    return std::min(7, __builtin_clz(x | 1));
  }

  struct Change {
    int place, mate;
    char is_low;
  };

  void set(int u, int mate, bool low) {
    changes_.push_back({u, mate_[u], is_low_[u]});
    mate_[u] = mate;
    is_low_[u] = low;
  }
  void unpair(int u) {
    if (mate_[u] < 0) return;
    const int v = mate_[u];
    set(u, -1, false);
    set(v, -1, false);
  }
  void pair(int low, int high) {
    unpair(low);
    unpair(high);
    set(low, high, true);
    set(high, low, false);
  }
  void undo() {
    for (auto change = changes_.rbegin(); change != changes_.rend(); ++change) {
      mate_[change->place] = change->mate;
      is_low_[change->place] = change->is_low;
    }
  }

  void change() {
    int u = model_.pairable[below(static_cast<int>(model_.pairable.size()))], v = -1;
    const int kind_of_move = below(16);
    if (kind_of_move == 0) {  // unpair
      unpair(u);
      return;
    }
    if (kind_of_move == 1 && mate_[u] >= 0) {  // turn round what is near
      turn(u);
      return;
    }
    if (kind_of_move < 9 && mate_[u] >= 0) {
      const int low = is_low_[u] ? u : mate_[u], high = mate_[low];
      const auto &x = model_.places[low], &y = model_.places[high];
      if (below(2) == 0 && !x.slots.empty()) {
        const int slot = below(static_cast<int>(x.slots.size()));
        u = x.slots[slot];
        v = y.slots[x.commutes || y.commutes ? below(static_cast<int>(y.slots.size())) : slot];
      } else if (!x.users.empty() && !y.users.empty()) {
        u = x.users[below(static_cast<int>(x.users.size()))];
        v = y.users[below(static_cast<int>(y.users.size()))];
      }
    }
    if (v < 0) {
      const int kind = model_.places[u].kind;
      if (kind < 0) return;
      const auto& others = model_.of_kind.at(kind);
      v = others[below(static_cast<int>(others.size()))];
      // One of the same shape, if there is one near.
      for (int trial = 0; trial < 4 && !alike(u, v); ++trial) {
        v = others[below(static_cast<int>(others.size()))];
      }
    }
    if (!model_.can_pair(u, v) || (mate_[u] == v && is_low_[u])) return;
    grow(u, v, 1 << below(8));
  }

  bool alike(int u, int v) const {
    return model_.places[u].above == model_.places[v].above ||
           model_.places[u].below == model_.places[v].below;
  }

  void turn(int start) {
    std::vector<int> queue = {start};
    const int limit = 1 << below(6);
    touched_.assign(model_.places.size(), 0);
    for (std::size_t i = 0; i < queue.size() && static_cast<int>(i) < limit; ++i) {
      const int u = queue[i];
      if (mate_[u] < 0 || touched_[u]) continue;
      const int v = mate_[u];
      touched_[u] = touched_[v] = 1;
      const bool low = is_low_[u];
      if (low) {
        pair(v, u);
      } else {
        pair(u, v);
      }
      for (const int p : {u, v}) {
        for (const int near : model_.places[p].slots) queue.push_back(near);
        for (const int near : model_.places[p].users) queue.push_back(near);
      }
    }
  }

  void grow(int low, int high, int limit) {
    touched_.assign(model_.places.size(), 0);
    std::vector<Pair> queue = {{low, high}};
    for (std::size_t i = 0; i < queue.size() && limit > 0; ++i) {
      const auto [u, v] = queue[i];
      if (touched_[u] || touched_[v] || !model_.can_pair(u, v)) continue;
      touched_[u] = touched_[v] = 1;
      --limit;
      if (mate_[u] != v || !is_low_[u]) pair(u, v);
      const auto &x = model_.places[u], &y = model_.places[v];
      if (x.slots.size() == 2 && (x.commutes || y.commutes)) {
        const auto fits = [&](int a, int b) {
          const auto &p = model_.places[a], &q = model_.places[b];
          return (p.kind == q.kind) + 2 * (p.above == q.above) + 2 * (mate_[a] == b);
        };
        const bool straight = fits(x.slots[0], y.slots[0]) + fits(x.slots[1], y.slots[1]) >=
                              fits(x.slots[0], y.slots[1]) + fits(x.slots[1], y.slots[0]);
        queue.push_back({x.slots[0], y.slots[straight ? 0 : 1]});
        queue.push_back({x.slots[1], y.slots[straight ? 1 : 0]});
      } else {
        for (std::size_t slot = 0; slot < x.slots.size(); ++slot) {
          queue.push_back({x.slots[slot], y.slots[slot]});
        }
      }
      for (const int user : x.users) {
        int best = -1, best_fit = -1;
        for (const int other : y.users) {
          if (touched_[other] || model_.places[user].kind != model_.places[other].kind) continue;
          const auto &p = model_.places[user], &q = model_.places[other];
          const int fit = (p.above == q.above) + 2 * (p.below == q.below) + (p.flips == q.flips);
          if (fit > best_fit) {
            best_fit = fit;
            best = other;
          }
        }
        if (best >= 0) queue.push_back({user, best});
      }
    }
  }

  // ---- The cost of the pairing, or -1 if there is a circle.

  struct Totals {
    int additions = 0, products = 0, shuffles = 0, crossings = 0, blends = 0, loads = 0, stores = 0;
  };

  bool is_first(int key_low, int key_high) {
    const std::uint32_t slot_count = 1u << 14;
    if (seen_.empty()) seen_.resize(slot_count);
    const std::uint64_t key =
        static_cast<std::uint64_t>(key_low) << 32 | static_cast<unsigned>(key_high);
    std::uint32_t at = static_cast<std::uint32_t>(mixed(key, 1)) % slot_count;
    while (seen_[at].stamp == stamp_) {
      if (seen_[at].key == key) return false;
      at = (at + 1) % slot_count;
    }
    seen_[at] = {key, stamp_};
    return true;
  }

  int latency_of(const PackModel::Place& place) const {
    switch (place.op) {
      case Op::kAdd:
      case Op::kSub:
      case Op::kFromZero:
        return 3;
      case Op::kMul:
      case Op::kProduct:
      case Op::kScale:
        return 4;
      case Op::kWiden:
      case Op::kRound:
        return 5;
      default:
        return 1;
    }
  }

  // The operand (low, high) of a pair; returns what it adds to the path.
  int count_join(int low, int high) {
    if (mate_[low] == high && is_low_[low]) return 0;
    const auto &x = model_.places[low], &y = model_.places[high];
    const int cross = x.wide ? 3 : 1;
    int& moves = x.wide ? totals_.crossings : totals_.shuffles;
    const bool is_new = is_first(low, high);
    if (x.op == Op::kZero && y.op == Op::kZero) return 0;
    if (x.is_load && y.is_load) {
      if (!is_new) return 0;
      const bool known = x.element >= 0 && y.element >= 0;
      if (known && y.element == x.element + x.lanes) {
        ++totals_.loads;
      } else if (known && y.element == x.element) {
        ++totals_.loads;
        if (x.floats) ++totals_.shuffles;
      } else {
        totals_.loads += 2;
        ++(x.floats ? totals_.shuffles : totals_.blends);
      }
      return 0;
    }
    const bool x_high = mate_[low] >= 0 && !is_low_[low],
               y_high = mate_[high] >= 0 && !is_low_[high];
    if (x.is_load) count_lone(low);
    if (y.is_load && is_new) ++totals_.loads;
    if (!x_high && (y_high || y.is_load)) {
      if (is_new) ++(x.floats ? totals_.shuffles : totals_.blends);
      return 1;
    }
    if (is_new) moves += x.floats && (x_high || y_high) && low != high ? 2 : 1;
    return cross;
  }

  // An operand of a node by itself.
  int count_lone(int id) {
    const auto& place = model_.places[id];
    if (place.is_load) {
      if (place.op != Op::kZero && is_first(id, -1)) ++totals_.loads;
      return 0;
    }
    if (mate_[id] < 0 || is_low_[id]) return 0;
    if (is_first(id, -1)) ++(place.wide ? totals_.crossings : totals_.shuffles);
    return place.wide ? 3 : 1;
  }

  void count_operation(const PackModel::Place& place, int other) {
    switch (place.op) {
      case Op::kAdd:
      case Op::kSub:
        ++totals_.additions;
        break;
      case Op::kFromZero:
        ++totals_.additions;
        break;
      case Op::kMul:
      case Op::kProduct:
      case Op::kScale:
        ++totals_.products;
        break;
      case Op::kLanes:
        ++totals_.shuffles;
        break;
      case Op::kFlipSigns:
        ++totals_.blends;
        break;
      case Op::kWiden:
      case Op::kRound:
        ++totals_.additions;
        if (place.op == Op::kRound || other >= 0 || !model_.places[place.slots[0]].is_load) {
          ++totals_.shuffles;
        }
        break;
      default:
        break;
    }
  }

  // Of a sum that adds some lanes and subtracts others.
  void count_signs(int low, int high, int second) {
    const auto &x = model_.places[low], &y = model_.places[high];
    if (x.op != Op::kAdd && x.op != Op::kSub) return;
    const unsigned all = (1u << 2 * x.lanes) - 1, flips = x.flips | y.flips << x.lanes;
    if (flips == 0 || flips == all || flips == (0x55u & all)) return;
    const auto& b = model_.places[second];
    if (b.op == Op::kMul && b.reads == 1 && mate_[second] >= 0) return;
    ++totals_.blends;
  }

  long depth(int id) {
    if (state_[id] == stamp_) return depth_[id];
    const int mate = mate_[id];
    if (open_[id] == stamp_) return -1;
    open_[id] = stamp_;
    if (mate >= 0) open_[mate] = stamp_;
    const auto& place = model_.places[id];
    long result = 0;
    bool circle = false;
    const auto read = [&](int operand, int extra) {
      const long path = depth(operand);
      circle = circle || path < 0;
      result = std::max(result, path + extra);
    };
    if (mate < 0) {
      const bool nothing = model_.is_identity(id);
      for (const int slot : place.slots) read(slot, nothing ? 0 : count_lone(slot));
      if (!nothing && !place.is_load) count_operation(place, -1);
      result += nothing || place.is_load ? 0 : latency_of(place);
    } else {
      const int low = is_low_[id] ? id : mate, high = mate_[low];
      const auto &x = model_.places[low], &y = model_.places[high];
      int swap = 0, turn = 0;
      const int slots = static_cast<int>(x.slots.size());
      if (slots == 2 && (x.commutes || y.commutes)) {
        const auto paired = [&](int a, int b) {
          const bool loads = model_.places[a].is_load && model_.places[b].is_load;
          return 2 * (mate_[a] == b && is_low_[a]) + loads;
        };
        const int straight = paired(x.slots[0], y.slots[0]) + paired(x.slots[1], y.slots[1]);
        const int crossed = paired(x.slots[0], y.slots[1]) + paired(x.slots[1], y.slots[0]);
        if (crossed > straight) (y.commutes ? swap : turn) = 1;
      }
      for (int slot = 0; slot < slots; ++slot) {
        const int p = x.slots[slot ^ turn], q = y.slots[slot ^ swap];
        const int extra = count_join(p, q);
        read(p, extra);
        read(q, extra);
      }
      count_operation(x, high);
      if (slots == 2) count_signs(low, high, x.slots[1 ^ turn]);
      result += latency_of(x);
    }
    if (circle) return -1;
    state_[id] = stamp_;
    depth_[id] = result;
    if (mate >= 0) {
      state_[mate] = stamp_;
      depth_[mate] = result;
    }
    return result;
  }

  void count_store(int id) {
    const auto& place = model_.places[id];
    const int source = model_.is_identity(id) && mate_[id] < 0 ? place.slots[0] : id;
    const int mate = mate_[source];
    const bool whole = place.stored_at >= 0;
    if (mate >= 0 && is_low_[source] && whole) {
      const int other = mate_[id] < 0 && model_.is_identity(id)
                            ? mate + static_cast<int>(model_.places.size()) / 2
                            : mate;
      if (model_.places[other].stored_at == place.stored_at + place.lanes)
        return;  // with the other
    }
    totals_.stores += whole ? 1 : 2;
    if (mate >= 0 && !is_low_[source] && !whole) ++totals_.crossings;
  }

  long cost() {
    ++stamp_;
    if (open_.empty()) open_.resize(model_.places.size());
    totals_ = {};
    long path = 0;
    for (int id = 0; id < static_cast<int>(model_.places.size()); ++id) {
      if (!model_.places[id].is_output) continue;
      const long length = depth(id);
      if (length < 0) return -1;
      path = std::max(path, length);
      if (model_.places[id].is_load) continue;
      count_store(id);
    }
    const Totals& t = totals_;
    const int two = t.additions + t.shuffles + t.crossings, three = two + t.products + t.blends;
    const long bound =
        std::max({600L * t.crossings, 300L * two, 200L * three, 200L * t.loads, 300L * t.stores});
    return bound + 30L * (three + t.loads + t.stores) + 30L * (t.shuffles + t.crossings) +
           12L * t.crossings + 6L * search_.path_weight * path;
  }

  PackModel model_;
  PairingSearch search_;
  std::mt19937 random_;
  std::vector<int> mate_;
  std::vector<char> is_low_;
  std::vector<Change> changes_;
  std::vector<char> touched_;
  Totals totals_;
  struct Seen {
    std::uint64_t key = 0;
    long stamp = 0;
  };
  std::vector<Seen> seen_;
  std::vector<long> depth_, state_, open_;
  long stamp_ = 0;
};

}  // namespace

FoundPairing find_pairing(const Graph& graph, const PairingSearch& search) {
  return Annealer(graph, search).run();
}

}  // namespace gen
