// Lane moves: from "these lanes are wanted side by side" to what a target carries out at once.
#pragma once

#include <optional>
#include <string>

#include "gen/graph.h"

namespace gen {

// Where a move runs.
enum class Port {
  kFree,      // a load, or no instruction at all
  kShuffle,   // within 128 bits
  kCrossing,  // from one half of 256 bits to the other
  kBlend,     // wherever there is room
};

// A kLanes node that is carried out at once: a call of a function of the target's vector header.
struct Move {
  std::string function;  // with its template arguments
  // What it is called with: vectors, or addresses of elements of the source.
  std::vector<NodeId> values;
  std::vector<int> elements;
  bool is_whole_load = false;  // which may rely on an array's alignment
  Port port = Port::kShuffle;
  int instructions = 1;
};

// What a target has for moving lanes.
class MoveSet {
 public:
  virtual ~MoveSet() = default;

  // How a kLanes node is carried out at once, if it can be.
  virtual std::optional<Move> single_move(const Graph& graph, NodeId lanes) const = 0;

  // The header that holds its functions.
  virtual const char* header() const = 0;

  // The width of its vectors. Those wider than 128 bits come from any address without a loss.
  virtual int vector_bits() const = 0;
};

// SSE with movddup, eight or sixteen registers of 128 bits. Lanes may also be picked by halves of
// such vectors, and one at a time.
const MoveSet& sse_moves();
// These, and 256 bits.
const MoveSet& avx2_moves();
// Those of this name, "sse" or "avx2". Throws std::invalid_argument.
const MoveSet& moves_called(const std::string& name);

inline int bits_of(const Node& node) {
  return node.lane_count * (node.precision == Precision::kSingle ? 32 : 64);
}

inline bool is_open(const Lane& lane) { return lane.node == kNoNode; }

// Whether the lane is an element of the source.
bool is_memory(const Graph& graph, const Lane& lane);

// The first of `count` consecutive elements of the source that stand in lanes from `first` on.
std::optional<int> memory_run(const Graph& graph, const Node& node, int first, int count);

// Takes lanes that come from memory out of whole vectors, as they lie in the source, of
// `source_length` elements. A single half, one that is wanted twice, and what is left at the end,
// is loaded by itself, so that nothing behind the source is read. `by_halves` loads two halves that
// are wanted side by side where they go: two loads more and one shuffle less than two vectors take,
// which pays if both halves of both vectors are wanted like that.
Graph load_vectors(const Graph& graph, int source_length, bool by_halves = false);

// Replaces kLanes nodes of 128 bits that take more than one instruction. Every half that mixes two
// vectors is a need; one shuffle of these two vectors serves two needs, and one more joins the
// halves.
Graph synthesize_shuffles(const Graph& graph);

}  // namespace gen
