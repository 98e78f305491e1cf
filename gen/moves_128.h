// The moves of SSE, which wider targets have as well.
#pragma once

#include "gen/moves.h"

namespace gen {

class SseMoves : public MoveSet {
 public:
  std::optional<Move> single_move(const Graph& graph, NodeId lanes) const override;
  const char* header() const override { return "frame/vector.h"; }
  int vector_bits() const override { return 128; }
};

}  // namespace gen
