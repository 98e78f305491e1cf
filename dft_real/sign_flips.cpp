#include "dft_real/sign_flips.h"

#include <algorithm>
#include <stdexcept>
#include <vector>

#include "gen/rewrite.h"

namespace dft_real {

using gen::Graph;
using gen::Node;
using gen::NodeId;
using gen::Op;
using gen::Value;

namespace {

struct Turn {
  NodeId output;  // the scaled value, or 0.0 minus it
  NodeId scaled;
  NodeId product;  // between the subtraction and the scale; or none
  NodeId difference;
};

bool is_flipped(const Graph& graph, NodeId output) {
  if (graph[output].op == Op::kRound) output = graph[output].a;
  return graph[output].op == Op::kFromZero;
}

}  // namespace

int count_sign_flips(const Graph& graph) {
  return static_cast<int>(
      std::count_if(graph.outputs().begin(), graph.outputs().end(),
                    [&](const gen::Output& out) { return is_flipped(graph, out.from.node); }));
}

Graph turn_final_subtractions(const Graph& old, int wanted) {
  int missing = wanted - count_sign_flips(old);
  const std::vector<int> uses = gen::use_counts(old);
  std::vector<Turn> turns;
  for (int part = 2; part < static_cast<int>(old.outputs().size()) && missing != 0; part += 2) {
    const NodeId output = old.outputs()[part].from.node;
    if (is_flipped(old, output) == (missing > 0)) continue;
    Turn turn{output, is_flipped(old, output) ? old[output].a : output, gen::kNoNode, gen::kNoNode};
    turn.difference = old[turn.scaled].a;
    if (old[turn.difference].op == Op::kMul && uses[turn.difference] == 1) {
      turn.product = turn.difference;
      turn.difference = old[turn.product].a;
    }
    if (old[turn.difference].op != Op::kSub || uses[turn.difference] != 1) continue;
    turns.push_back(turn);
    missing += missing > 0 ? -1 : 1;
  }
  if (missing != 0) throw std::logic_error("no way to so many sign flips");

  return gen::rebuild(old, [&](Graph& graph, NodeId id, const gen::NewValues& new_value) {
    for (const Turn& turn : turns) {
      if (id != turn.output) continue;
      const Node& difference = old[turn.difference];
      graph.begin_stage(old.stages()[difference.stage]);
      Value value = graph.sub(new_value[difference.b], new_value[difference.a]);
      if (turn.product != gen::kNoNode) value = graph.mul(old.factors(old[turn.product]), value);
      graph.begin_stage(old.stages()[old[turn.scaled].stage]);
      value = graph.scale(value);
      return is_flipped(old, id) ? value : graph.settle_sign(-value);
    }
    return gen::copy_node(old, id, graph, new_value);
  });
}

}  // namespace dft_real
