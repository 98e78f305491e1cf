#include "generate/pairings.h"

#include <algorithm>
#include <limits>

#include "gen/pack_search.h"
#include "gen/rewrite.h"

namespace generate {
namespace {

// The longest path decides at primes, where sums of many products hang on few values.
int path_weight(int length) {
  for (int divisor = 2; divisor < length; ++divisor) {
    if (length % divisor == 0) return 10;
  }
  return 40;
}

}  // namespace

std::string find_pairings(const gen::Kernel& kernel, const gen::MoveSet& moves) {
  const gen::Graph graph = gen::number_from_outputs(
      gen::lowered(kernel.graph(), kernel.source_elements, kernel.loads_halves));
  // Until its widest vectors are as wide as the target's, twice at the most.
  int bits = 32, runs = 0;
  for (gen::NodeId id = 0; id < graph.size(); ++id) bits = std::max(bits, gen::bits_of(graph[id]));
  while (runs < 2 && bits << (runs + 1) <= moves.vector_bits()) ++runs;

  gen::PairingSearch search;
  search.path_weight = path_weight(kernel.length());
  search.moves = std::clamp(100 * graph.size(), 10000, 80000);
  std::vector<gen::Pairing> best;
  long least = std::numeric_limits<long>::max();
  // The runs that are missing, one after the other.
  const auto complete = [&](std::vector<gen::Pairing> pairings) {
    gen::FoundPairing found;
    while (static_cast<int>(pairings.size()) < runs) {
      found = gen::find_pairing(gen::packed(graph, pairings, moves), search);
      pairings.push_back(found.pairing);
    }
    if (found.cost >= least || found.pairing.empty()) return;
    least = found.cost;
    best = std::move(pairings);
  };
  // Many short searches, as what the first run pairs decides what the second one can; then longer
  // ones for the last run.
  const int samples = runs == 0 ? 0 : std::clamp(12000 / graph.size(), 4, 16);
  for (; static_cast<int>(search.seed) <= samples; ++search.seed) complete({});
  search.moves *= 5;
  for (int trial = 0; trial < 2 && !best.empty(); ++trial, ++search.seed) {
    complete({best.begin(), best.end() - 1});
  }
  std::string lines;
  for (const gen::Pairing& pairing : best) lines += kernel.name + " " + to_string(pairing) + "\n";
  return lines;
}

}  // namespace generate
