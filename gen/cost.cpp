#include "gen/cost.h"

#include <algorithm>

#include "gen/schedule.h"

namespace gen {

VectorOperations count_vector_operations(const Graph& graph) {
  VectorOperations counts;
  const std::vector<bool> live = graph.live_nodes();
  for (NodeId id = 0; id < graph.size(); ++id) {
    if (!live[id] || is_load(graph, id)) continue;
    switch (graph[id].op) {
      case Op::kAdd:
      case Op::kSub:
        ++counts.additions;
        break;
      case Op::kMul:
      case Op::kProduct:
      case Op::kScale:
        ++counts.multiplications;
        break;
      case Op::kLanes:
        ++counts.moves;
        break;
      case Op::kFlipSigns:
        ++counts.sign_flips;
        break;
      default:
        break;
    }
  }
  return counts;
}

double port_cost(const VectorOperations& operations) {
  const int two_ports = operations.additions + operations.moves;
  const int all = two_ports + operations.multiplications + operations.sign_flips;
  return std::max(two_ports / 2.0, all / 3.0) + all * 0.03;
}

}  // namespace gen
