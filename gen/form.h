// How a kernel or a body is written down for a target: what measured fastest there.
#pragma once

#include "gen/moves.h"
#include "gen/pack.h"
#include "gen/schedule.h"

namespace gen {

struct Form {
  Order order;
  const MoveSet* moves = &sse_moves();
  // What goes side by side in wider vectors: for every run of the packing pass.
  std::vector<Pairing> pairings = {};
};

}  // namespace gen
