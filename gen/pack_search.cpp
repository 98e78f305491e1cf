#include "gen/pack_search.h"

#include <algorithm>
#include <cstdint>
#include <random>

#include "gen/pack_cost.h"

namespace gen {
namespace {

class Annealer {
 public:
  Annealer(const Graph& graph, const PairingSearch& search)
      : model_(graph),
        search_(search),
        cost_(model_, search.path_weight),
        random_(search.seed),
        mates_(model_),
        touched_(model_.places.size()) {}

  FoundPairing run() {
    FoundPairing found;
    long current = cost_(mates_);
    found.cost = found.cost_unpaired = current;
    if (model_.pairable.empty()) return found;
    Mates best = mates_;
    const long first = std::max(1L, current / 600);
    for (int move = 0; move < search_.moves; ++move) {
      // Cools down by the square of what is left.
      const long left = search_.moves - move, all = search_.moves;
      const long heat = first * left / all * left / all;
      change();
      const long next = mates_.has_changed() ? cost_(mates_) : -1;
      if (next < 0 || (next > current && next - current > heat * minus_log())) {
        mates_.take_back();
        continue;
      }
      mates_.keep();
      current = next;
      if (current < found.cost) {
        found.cost = current;
        best = mates_;
      }
    }
    const int size = static_cast<int>(model_.places.size());
    const auto name = [&](int place) {
      return model_.is_identity(place) ? place - size / 2 + kIdentity : place;
    };
    for (int id = 0; id < size; ++id) {
      if (best.mate(id) < 0 || best.is_high(id)) continue;
      found.pairing.push_back({name(id), name(best.mate(id))});
    }
    return found;
  }

 private:
  using Place = PackModel::Place;

  int below(int count) { return static_cast<int>(random_() % static_cast<unsigned>(count)); }
  int any_of(const std::vector<int>& places) {
    return places[below(static_cast<int>(places.size()))];
  }
  // -log of a number between 0 and 1, in whole numbers 0 to 7.
  long minus_log() {
    const std::uint32_t x = random_();
    return std::min(7, __builtin_clz(x | 1));
  }

  void change() {
    const int start = any_of(model_.pairable);
    const bool is_paired = mates_.mate(start) >= 0;
    if (below(4) == 0) return renew(start);
    const int kind_of_change = below(16);
    if (kind_of_change == 0) return mates_.unpair(start);
    if (kind_of_change == 1 && is_paired) return turn(start);
    const auto [low, high] = kind_of_change < 9 && is_paired ? beside(start) : Pair{start, kNoNode};
    if (low < 0 || model_.places[low].kind < 0) return;
    const int mate = high < 0 ? candidate(low) : high;
    if (model_.can_pair(low, mate) && !mates_.is_pair(low, mate)) grow(low, mate, 1 << below(10));
  }

  // Two places that the place's pair reads, or that read it.
  Pair beside(int place) {
    const int mate = mates_.mate(place);
    const bool is_high = mates_.is_high(place);
    const Place& x = model_.places[is_high ? mate : place];
    const Place& y = model_.places[is_high ? place : mate];
    if (below(2) == 0 && !x.slots.empty()) {
      const int slot = below(static_cast<int>(x.slots.size()));
      return {x.slots[slot], x.commutes || y.commutes ? any_of(y.slots) : y.slots[slot]};
    }
    if (x.users.empty() || y.users.empty()) return {place, kNoNode};
    return {any_of(x.users), any_of(y.users)};
  }

  // One that the place may go with, of the same shape if that is soon found.
  int candidate(int place) {
    const std::vector<int>& others = model_.of_kind.at(model_.places[place].kind);
    const auto is_alike = [&](int other) {
      return model_.places[place].above == model_.places[other].above ||
             model_.places[place].below == model_.places[other].below;
    };
    int other = any_of(others);
    for (int trial = 0; trial < 4 && !is_alike(other); ++trial) other = any_of(others);
    return other;
  }

  // Changes low and high in the pairs around a place.
  void turn(int start) {
    std::vector<int> queue = {start};
    const int limit = 1 << below(6);
    touched_.assign(touched_.size(), false);
    for (std::size_t i = 0; i < queue.size() && static_cast<int>(i) < limit; ++i) {
      const int u = queue[i], v = mates_.mate(u);
      if (v < 0 || touched_[u]) continue;
      touched_[u] = touched_[v] = true;
      if (mates_.is_high(u)) {
        mates_.pair(u, v);
      } else {
        mates_.pair(v, u);
      }
      for (const int place : {u, v}) {
        for (const int near : model_.places[place].slots) queue.push_back(near);
        for (const int near : model_.places[place].users) queue.push_back(near);
      }
    }
  }

  // Pairs the two, then what they read and what reads them, and so on, over whatever was there.
  void grow(int low, int high, int limit) {
    touched_.assign(touched_.size(), false);
    std::vector<Pair> queue = {{low, high}};
    for (std::size_t i = 0; i < queue.size() && limit > 0; ++i) {
      const auto [u, v] = queue[i];
      if (touched_[u] || touched_[v] || !model_.can_pair(u, v)) continue;
      touched_[u] = touched_[v] = true;
      --limit;
      if (!mates_.is_pair(u, v)) mates_.pair(u, v);
      const Place &x = model_.places[u], &y = model_.places[v];
      const int crossed = x.slots.size() == 2 && (x.commutes || y.commutes) && fits_crossed(x, y);
      for (std::size_t slot = 0; slot < x.slots.size(); ++slot) {
        queue.push_back({x.slots[slot], y.slots[slot ^ crossed]});
      }
      for (const int user : x.users) {
        const int match = match_of(user, y.users);
        if (match >= 0) queue.push_back({user, match});
      }
    }
  }

  bool fits_crossed(const Place& x, const Place& y) const {
    const auto fit = [&](int a, int b) {
      const Place &p = model_.places[a], &q = model_.places[b];
      return (p.kind == q.kind) + 2 * (p.above == q.above) + 2 * (mates_.mate(a) == b);
    };
    return fit(x.slots[0], y.slots[1]) + fit(x.slots[1], y.slots[0]) >
           fit(x.slots[0], y.slots[0]) + fit(x.slots[1], y.slots[1]);
  }

  // The one among these that is most like the place, or -1.
  int match_of(int place, const std::vector<int>& others) const {
    const Place& p = model_.places[place];
    int best = -1, best_fit = -1;
    for (const int other : others) {
      const Place& q = model_.places[other];
      if (touched_[other] || p.kind != q.kind) continue;
      const int fit = (p.above == q.above) + 2 * (p.below == q.below) + (p.flips == q.flips);
      if (fit > best_fit) {
        best_fit = fit;
        best = other;
      }
    }
    return best;
  }

  // Takes the pairs of a region apart, and pairs its places anew, each with the one that suits it
  // best, from the source on or from the outputs.
  void renew(int start) {
    std::vector<int> region = region_around(start, (4 << below(4)) + below(8));
    for (const int id : region) mates_.unpair(id);
    std::erase_if(region, [&](int id) { return model_.places[id].kind < 0; });
    std::sort(region.begin(), region.end());
    if (below(2) == 0) std::reverse(region.begin(), region.end());
    const int noise = 1 << below(4);
    for (const int u : region) {
      if (mates_.mate(u) >= 0) continue;
      Pair best;
      int best_worth = below(6);
      for (const int v : region) {
        if (mates_.mate(v) >= 0 || !model_.can_pair(u, v)) continue;
        for (const Pair& pair : {Pair{u, v}, Pair{v, u}}) {
          const int value = worth(pair) + below(noise);
          if (value <= best_worth) continue;
          best_worth = value;
          best = pair;
        }
      }
      if (best.low >= 0) mates_.pair(best.low, best.high);
    }
  }

  std::vector<int> region_around(int start, int limit) {
    std::vector<int> region;
    touched_.assign(touched_.size(), false);
    const auto add = [&](int id) {
      if (id < 0 || touched_[id]) return;
      touched_[id] = true;
      region.push_back(id);
    };
    add(start);
    for (std::size_t i = 0; i < region.size() && static_cast<int>(region.size()) < limit; ++i) {
      const Place& place = model_.places[region[i]];
      add(mates_.mate(region[i]));
      const auto add_some = [&](const std::vector<int>& places) {
        for (const int near : places) {
          if (below(4) != 0) add(near);
        }
      };
      add_some(place.slots);
      if (place.users.size() <= kManyUsers) add_some(place.users);
    }
    return region;
  }

  // What a pair is worth where others are as they are: moves that it saves, in eighths.
  int worth(const Pair& pair) const {
    const Place &x = model_.places[pair.low], &y = model_.places[pair.high];
    const auto read = [&](int slot, int other) {
      return worth_of_operand(x.slots[slot], y.slots[other]);
    };
    int result = 1 + (x.flips == y.flips);
    if (x.slots.size() == 2 && (x.commutes || y.commutes)) {
      result += std::max(read(0, 0) + read(1, 1), read(0, 1) + read(1, 0));
    } else {
      for (int slot = 0; slot < static_cast<int>(x.slots.size()); ++slot) {
        result += read(slot, slot);
      }
    }
    int users = 0;
    if (x.users.size() <= kManyUsers) {
      for (const int user : x.users) {
        const int mate = mates_.mate(user);
        if (mate < 0 || mates_.is_high(user)) continue;
        users += static_cast<int>(std::count(y.users.begin(), y.users.end(), mate));
      }
    }
    if (x.stored_at >= 0 && y.stored_at == x.stored_at + x.lanes) result += 8;
    return result + 8 * std::min(users, 2);
  }

  int worth_of_operand(int low, int high) const {
    if (mates_.mate(low) == high) return mates_.is_high(low) ? 3 : 8;
    const Place &x = model_.places[low], &y = model_.places[high];
    if (x.is_load && y.is_load) {
      if (x.element >= 0 && y.element == x.element + x.lanes) return 8;
      return low == high ? 6 : 3;
    }
    if (low == high) return 2;
    const bool may_pair = mates_.mate(low) < 0 && mates_.mate(high) < 0 && x.kind == y.kind;
    return may_pair && !x.is_load && !y.is_load ? 3 : 0;
  }

  static constexpr int kManyUsers = 8;

  const PackModel model_;
  const PairingSearch search_;
  PairingCost cost_;
  std::mt19937 random_;
  Mates mates_;
  std::vector<char> touched_;
};

}  // namespace

FoundPairing find_pairing(const Graph& graph, const PairingSearch& search) {
  return Annealer(graph, search).run();
}

}  // namespace gen
