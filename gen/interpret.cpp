#include "gen/interpret.h"

#include <stdexcept>

namespace gen {
namespace {

// The result of one operation, computed in `T`. Both operands are exact in T.
template <class T>
double operate(Op op, double a, double b) {
  const T x = static_cast<T>(a), y = static_cast<T>(b);
  switch (op) {
    case Op::kAdd:
      return static_cast<T>(x + y);
    case Op::kSub:
      return static_cast<T>(x - y);
    default:
      return static_cast<T>(x * y);
  }
}

double operate(Precision precision, Op op, double a, double b) {
  return precision == Precision::kSingle ? operate<float>(op, a, b) : operate<double>(op, a, b);
}

double rounded(Precision precision, Quad value) {
  return precision == Precision::kSingle ? static_cast<float>(value) : static_cast<double>(value);
}

}  // namespace

std::vector<LaneValues> evaluate(const Graph& graph, const std::vector<double>& source,
                                 double scale) {
  std::vector<LaneValues> values(graph.size());
  const std::vector<bool> live = graph.live_nodes();
  for (NodeId id = 0; id < graph.size(); ++id) {
    if (!live[id]) continue;
    const Node& node = graph[id];
    for (int lane = 0; lane < node.lane_count; ++lane) {
      const bool flip = node.flips >> lane & 1;
      const double a = node.a == kNoNode ? 0 : values[node.a][lane];
      double& result = values[id][lane];
      switch (node.op) {
        case Op::kInput:
          result = source[node.element];
          break;
        case Op::kFetch:
          throw std::logic_error("what an accessor brings is not known here");
        case Op::kZero:
          result = flip ? -0.0 : 0.0;
          break;
        case Op::kLanes: {
          const Lane& pick = node.picks[lane];
          result = pick.node == kNoNode ? 0 : values[pick.node][pick.index];
          break;
        }
        case Op::kFlipSigns:
          result = flip ? -a : a;
          break;
        case Op::kFromZero:
          result = 0.0 - a;
          break;
        case Op::kAdd:
        case Op::kSub:
        case Op::kProduct:
          result = operate(node.precision, node.op, a,
                           flip ? -values[node.b][lane] : values[node.b][lane]);
          break;
        case Op::kMul: {
          const Quad factor = graph.factor(node, lane).value();
          result = operate(node.precision, Op::kMul, rounded(node.precision, factor), a);
          break;
        }
        case Op::kScale:
          result = operate(node.precision, Op::kMul, flip ? -scale : scale, a);
          break;
        case Op::kWiden:
          result = a;
          break;
        case Op::kRound:
          result = static_cast<float>(a);
          break;
      }
    }
  }
  return values;
}

std::vector<double> interpret(const Graph& graph, const std::vector<double>& source, double scale) {
  const std::vector<LaneValues> values = evaluate(graph, source, scale);
  std::vector<double> destination;
  for (const Output& out : graph.outputs()) {
    if (out.element >= static_cast<int>(destination.size())) destination.resize(out.element + 1);
    destination[out.element] = values[out.from.node][out.from.index];
  }
  return destination;
}

}  // namespace gen
