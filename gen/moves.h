// Lane moves: from "these lanes are wanted side by side" to single instructions.
#pragma once

#include <optional>

#include "gen/graph.h"

namespace gen {

enum class Move {
  kLoad,        // a whole vector from memory
  kLoadLow,     // the low half from memory, zeros above it
  kLoadTwice,   // half a vector from memory, into both halves
  kLoadHalves,  // two halves from memory, each from a place of its own
  kShuffle,     // low half picked from `a`, high half from `b`
  kUnpackLow,   // low halves of `a` and `b`, interleaved
  kUnpackHigh,  // high halves of `a` and `b`, interleaved
};

struct MoveForm {
  Move move;
  NodeId a = kNoNode, b = kNoNode;
  int element = 0;                       // loads: first element of the source
  int high_element = 0;                  // kLoadHalves: first element of the upper half
  std::array<int, kMaxLanes> indices{};  // kShuffle: the lanes picked
};

// The instruction that carries out a kLanes node, if one is enough.
std::optional<MoveForm> single_move(const Graph& graph, NodeId lanes);

// Takes lanes that come from memory out of whole vectors, as they lie in the source, of
// `source_length` elements. A single half, one that is wanted twice, and what is left at the end,
// is loaded by itself, so that nothing behind the source is read. `by_halves` loads two halves that
// are wanted side by side where they go: two loads more and one shuffle less than two vectors take,
// which pays if both halves of both vectors are wanted like that.
Graph load_vectors(const Graph& graph, int source_length, bool by_halves = false);

// Replaces kLanes nodes that take more than one instruction. Every half that mixes two vectors is
// a need; one shuffle of these two vectors serves two needs, and one more joins the halves.
Graph synthesize_shuffles(const Graph& graph);

}  // namespace gen
