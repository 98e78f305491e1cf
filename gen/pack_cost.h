// What a pairing costs: an estimate of the packed kernel's cycles from ports and latencies.
#pragma once

#include <cstdint>
#include <vector>

#include "gen/pack_model.h"

namespace gen {

class PairingCost {
 public:
  // `path_weight`: of a cycle of latency on the longest path, in hundredths of a cycle.
  PairingCost(const PackModel& model, int path_weight);

  // In units of 1/600 cycle, or -1 if pairs depend on one another in a circle.
  long operator()(const Mates& mates);

 private:
  using Place = PackModel::Place;
  struct Totals {
    int additions = 0, products = 0, shuffles = 0, crossings = 0, blends = 0, loads = 0, stores = 0;
  };

  // Counts what makes the place's value, once, and all that it depends on. Returns the cycles until
  // it is there, or -1.
  long depth(int place);
  long depth_of_single(int place);
  long depth_of_pair(int low, int high);
  void count_operation(const Place& place, bool reads_memory);
  void count_signs(int low, int high, int second);
  // What brings operands where they are wanted. Both return what it adds to the path.
  int count_join(int low, int high);
  int count_single(int place);
  void count_joined_loads(const Place& low, const Place& high);
  void count_store(int place);
  // Whether this was not asked before in this round.
  bool is_first(int low, int high);

  const PackModel& model_;
  const int path_weight_;
  const Mates* mates_ = nullptr;
  Totals totals_;
  // What belongs to this round bears its number.
  struct Seen {
    std::uint64_t key = 0;
    long round = 0;
  };
  std::vector<Seen> seen_;
  std::vector<long> depth_, known_, open_;
  long round_ = 0;
};

}  // namespace gen
