// Both graphs are expanded, lane by lane, into expressions of scalars, which are shared as far as
// they are equal: then equal outputs are the same expression.
#include <algorithm>
#include <cmath>
#include <map>
#include <stdexcept>

#include "gen/pack.h"
#include "gen/scalar.h"

namespace gen {
namespace {

// Signs stay outside of scalars where that changes no bit.
class Expressions {
 public:
  // Of every output, by its element.
  std::map<int, Scalar> outputs(const Graph& graph) {
    std::vector<std::vector<Scalar>> values(graph.size());
    const std::vector<bool> live = graph.live_nodes();
    for (NodeId id = 0; id < graph.size(); ++id) {
      for (int lane = 0; live[id] && lane < graph[id].lane_count; ++lane) {
        values[id].push_back(expand(graph, graph[id], lane, values));
      }
    }
    std::map<int, Scalar> result;
    for (const Output& out : graph.outputs()) {
      result[out.element] = values[out.from.node][out.from.index];
    }
    return result;
  }

 private:
  using Key = std::vector<int>;

  Scalar expand(const Graph& graph, const Node& node, int lane,
                const std::vector<std::vector<Scalar>>& values) {
    const bool flip = node.flips >> lane & 1;
    const auto with_sign = [](Scalar value, bool flip) { return flip ? -value : value; };
    const Scalar a = node.a == kNoNode ? Scalar{} : values[node.a][lane];
    const Scalar b = node.b == kNoNode ? Scalar{} : values[node.b][lane];
    const int op = static_cast<int>(node.op), precision = static_cast<int>(node.precision);
    switch (node.op) {
      case Op::kInput:
        return unique({op, node.element});
      case Op::kFetch:
        return unique({op, node.array, node.element, lane});
      case Op::kZero:
        return {0, flip};
      case Op::kLanes: {
        // A lane that nobody reads is like no other.
        const Lane& pick = node.picks[lane];
        return is_open(pick) ? unique({op, ++open_lanes_}) : values[pick.node][pick.index];
      }
      case Op::kFlipSigns:
        return with_sign(a, flip);
      case Op::kFromZero:
        return sum(precision, {}, -a);
      case Op::kAdd:
        return sum(precision, a, with_sign(b, flip));
      case Op::kSub:
        return sum(precision, a, -b);
      case Op::kMul: {
        const Number& factor = graph.factor(node, lane);
        const bool minus = std::signbit(static_cast<double>(factor.value()));
        const Number magnitude = minus ? -factor : factor;
        if (magnitude == Number(1)) return {a.id, a.negative != minus};
        return {unique({op, precision, number_of(magnitude), a.id}).id, a.negative != minus};
      }
      case Op::kProduct:
        return {unique({op, precision, std::min(a.id, b.id), std::max(a.id, b.id)}).id,
                a.negative != b.negative};
      case Op::kScale:
      case Op::kWiden:
      case Op::kRound:
        return {unique({op, precision, a.id}).id, a.negative != flip};
    }
    return {};
  }

  // No sign comes out of a sum: -a - b and -(a + b) are different zeros where a = -b.
  Scalar sum(int precision, Scalar a, Scalar b) {
    constexpr Scalar kMinusZero = {0, true};
    if (a == kMinusZero) return b;
    if (b == kMinusZero) return a;
    if (b < a) std::swap(a, b);
    return unique({static_cast<int>(Op::kAdd), precision, a.id, a.negative, b.id, b.negative});
  }

  Scalar unique(const Key& key) {
    return {known_.try_emplace(key, static_cast<int>(known_.size()) + 1).first->second};
  }

  int number_of(const Number& number) {
    return numbers_.try_emplace(number.bits(), static_cast<int>(numbers_.size())).first->second;
  }

  std::map<Key, int> known_;
  std::map<Number::Bits, int> numbers_;
  int open_lanes_ = 0;
};

}  // namespace

void prove_equal(const Graph& graph, const Graph& packed) {
  Expressions expressions;
  const auto wanted = expressions.outputs(graph), found = expressions.outputs(packed);
  if (wanted.size() != found.size()) throw std::logic_error("packing changes the outputs");
  for (const auto& [element, value] : wanted) {
    const auto other = found.find(element);
    if (other == found.end() || other->second != value) {
      throw std::logic_error("packing changes output " + std::to_string(element));
    }
  }
}

}  // namespace gen
