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
      case Op::kFromZero:
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
      case Op::kWiden:
      case Op::kRound:
        ++counts.conversions;
        break;
      default:
        break;
    }
  }
  return counts;
}

int latency(Op op) {
  switch (op) {
    case Op::kAdd:
    case Op::kSub:
    case Op::kFromZero:
      return 3;
    case Op::kMul:
    case Op::kProduct:
    case Op::kScale:
      return 4;
    case Op::kWiden:
    case Op::kRound:
      return 5;
    default:
      return 1;
  }
}

namespace {

int on_two_ports(const VectorOperations& operations) {
  return operations.additions + operations.moves + operations.conversions;
}

int on_three_ports(const VectorOperations& operations) {
  return on_two_ports(operations) + operations.multiplications + operations.sign_flips +
         operations.conversions;
}

}  // namespace

double port_bound(const VectorOperations& operations) {
  return std::max(on_two_ports(operations) / 2.0, on_three_ports(operations) / 3.0);
}

double port_cost(const VectorOperations& operations) {
  return port_bound(operations) + on_three_ports(operations) * 0.03;
}

}  // namespace gen
