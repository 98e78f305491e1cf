// A graph as the search for a pairing sees it.
#pragma once

#include <cstdint>
#include <map>
#include <utility>
#include <vector>

#include "gen/pack.h"

namespace gen {

// Places are the graph's nodes, by their ids, and then their identities.
struct PackModel {
  struct Place {
    int kind = -1;  // nodes of equal kind may pair
    std::vector<int> slots, users;
    Op op = Op::kInput;
    bool commutes = false, is_load = false, is_used = false, is_output = false;
    bool wide = false;        // paired, it takes 256 bits
    bool floats = false;      // paired, it is two floats
    bool two_floats = false;  // it is two floats by itself
    unsigned flips = 0;
    int lanes = 1;
    int element = -1;    // a load: the first element, if they are consecutive
    int stored_at = -1;  // an output: the first element, if they are consecutive
    std::uint64_t above = 0, below = 0;  // hashes of what it depends on, and of what depends on it
  };
  std::vector<Place> places;
  std::vector<int> pairable;
  std::map<int, std::vector<int>> of_kind;
  std::vector<std::vector<std::uint64_t>> reach;  // bit v of row u: u depends on v

  explicit PackModel(const Graph& graph);
  bool depends(int u, int v) const { return reach[u][v / 64] >> (v % 64) & 1; }
  // Two identities have no reason to pair.
  bool can_pair(int u, int v) const {
    return u != v && places[u].kind >= 0 && places[u].kind == places[v].kind && !depends(u, v) &&
           !depends(v, u) && !(is_identity(u) && is_identity(v));
  }
  bool is_identity(int u) const { return 2 * u >= static_cast<int>(places.size()); }
  int identity_of(int u) const { return u + static_cast<int>(places.size()) / 2; }
};

// Which places are paired, with a way back.
class Mates {
 public:
  explicit Mates(const PackModel& model) : states_(model.places.size()) {}

  int mate(int place) const { return states_[place].mate; }  // or -1
  bool is_high(int place) const { return states_[place].is_high; }
  bool is_pair(int low, int high) const { return mate(low) == high && is_high(high); }

  void pair(int low, int high) {
    unpair(low);
    unpair(high);
    set(low, {high, false});
    set(high, {low, true});
  }
  void unpair(int place) {
    const int other = mate(place);
    if (other < 0) return;
    set(place, {});
    set(other, {});
  }

  // What was done since is kept, or taken back.
  bool has_changed() const { return !changes_.empty(); }
  void keep() { changes_.clear(); }
  void take_back() {
    for (; !changes_.empty(); changes_.pop_back()) {
      states_[changes_.back().first] = changes_.back().second;
    }
  }

 private:
  struct State {
    int mate = -1;
    bool is_high = false;
  };
  void set(int place, State state) {
    changes_.push_back({place, states_[place]});
    states_[place] = state;
  }

  std::vector<State> states_;
  std::vector<std::pair<int, State>> changes_;
};

// Mixes two numbers into a hash.
std::uint64_t mixed(std::uint64_t a, std::uint64_t b);

}  // namespace gen
