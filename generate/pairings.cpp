#include "generate/pairings.h"

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

std::string find_pairings(const gen::Kernel& kernel, int moves, const gen::MoveSet& widest) {
  const gen::Graph graph = gen::number_from_outputs(
      gen::lowered(kernel.graph(), kernel.source_elements, kernel.loads_halves));
  std::string lines;
  std::vector<gen::Pairing> pairings;
  // Of scalars, vectors of two, and of these vectors of four.
  const int runs = kernel.bodies == gen::Bodies::kOne ? 2 : 1;
  for (int run = 0; run < runs; ++run) {
    const gen::Graph before = gen::packed(graph, pairings, widest);
    gen::FoundPairing best;
    for (unsigned seed = 1; seed <= 2; ++seed) {
      const auto found = gen::find_pairing(before, {moves, seed, path_weight(kernel.length())});
      if (seed == 1 || found.cost < best.cost) best = found;
    }
    if (best.pairing.empty()) break;
    pairings.push_back(best.pairing);
    lines += kernel.name + " " + to_string(best.pairing) + "\n";
  }
  gen::packed(graph, pairings, widest);
  return lines;
}

}  // namespace generate
