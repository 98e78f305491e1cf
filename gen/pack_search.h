// The search for a pairing that makes a packed kernel cheap. It takes seconds to minutes a kernel,
// so it runs once, by a tool, and what it finds is kept in the target's tables.
#pragma once

#include "gen/pack.h"

namespace gen {

struct PairingSearch {
  int moves = 60000;
  unsigned seed = 1;
  int path_weight = 10;  // of a cycle of latency on the longest path, in hundredths of a cycle
};

// In units of 1/600 cycle, as estimated from ports and latencies.
struct FoundPairing {
  Pairing pairing;
  long cost = 0, cost_unpaired = 0;
};

// Simulated annealing with large neighbourhoods: a change pairs two nodes and lets the pairing grow
// along what they read and what reads them, over whatever was there, or pairs a region anew. Whole
// numbers decide, so that a search can be repeated.
FoundPairing find_pairing(const Graph& graph, const PairingSearch& search);

}  // namespace gen
