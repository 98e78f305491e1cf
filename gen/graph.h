// The data-flow graph (DAG) of one kernel: typed, hash-consed nodes on vectors of 1 to 8 lanes.
//
// A node is a value that the kernel computes. Nodes are only ever appended, and their operands
// stand before them, so ascending order is a valid order of evaluation. Two requests for the same
// operation on the same operands give the same node; nothing else is merged, and no operation is
// replaced by another that could round differently.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <unordered_map>
#include <vector>

#include "gen/number.h"

namespace gen {

inline constexpr int kMaxLanes = 8;

enum class Precision : std::uint8_t { kSingle, kDouble };

enum class Op : std::uint8_t {
  kInput,      // one element of the source array; one lane
  kFetch,      // a vector that the caller of the code brings, by an accessor of its own
  kZero,       // the constant +0.0, or, in the lanes of `flips`, -0.0
  kLanes,      // lanes picked from other nodes; lanes that nobody reads may stay open
  kFlipSigns,  // negates some lanes
  kFromZero,   // 0.0 - a: the negative, but +0.0 of either zero
  kAdd,        // in the lanes of `flips`, a - b
  kSub,
  kMul,      // each lane by its own constant
  kProduct,  // of two values
  kScale,    // by the factor that the call's flag selects; in the lanes of `flips`, its negative
  kWiden,    // single to double
  kRound,    // double to single
};

using NodeId = int;
inline constexpr NodeId kNoNode = -1;

// A node, or its negative: signs travel outside the nodes as long as they apply to all lanes.
struct Value {
  NodeId node = kNoNode;
  bool negative = false;
  Value operator-() const { return {node, !negative}; }
  friend auto operator<=>(const Value&, const Value&) = default;
};

// One lane of a node; `kNoNode` is a lane that nobody reads.
struct Lane {
  NodeId node = kNoNode;
  int index = 0;
  friend auto operator<=>(const Lane&, const Lane&) = default;
};

// The constants of a multiplication, one a lane.
using Factors = std::vector<Number>;

struct Node {
  Op op = Op::kInput;
  Precision precision = Precision::kSingle;
  int lane_count = 1;
  NodeId a = kNoNode, b = kNoNode;     // operands
  int element = 0;                     // kInput, kFetch: index in the array
  int array = 0;                       // kFetch: number of the accessor
  unsigned flips = 0;                  // a bit a lane: kFlipSigns negates those that are set
  std::array<Lane, kMaxLanes> picks;   // kLanes
  std::array<int, kMaxLanes> factors;  // kMul: indices into Graph::numbers()
  int stage = 0;                       // index into Graph::stages(); not part of its identity
};

// Whether an addition subtracts in even lanes and adds in odd ones, which is an instruction.
inline bool subtracts_even_lanes(const Node& node) {
  return node.flips == (0x55u & ((1u << node.lane_count) - 1));
}

// A part of the algorithm: the short name that its values begin with, and what it does.
struct Stage {
  std::string name, description;
  friend bool operator==(const Stage&, const Stage&) = default;
};

// Where an element of the destination comes from.
struct Output {
  int element;
  Lane from;
};

class Graph {
 public:
  explicit Graph(Precision sample) : sample_(sample) {}

  Value input(int element);
  // Vector number `element` of those that accessor number `array` reaches.
  Value fetch(int array, int element, int lane_count);
  Value zero(Precision precision, int lane_count = 1, unsigned flips = 0);
  // All picked lanes have the same precision; open lanes are default-constructed.
  Value lanes(const std::vector<Lane>& picks);
  Value flip_signs(Value a, unsigned flips);
  Value add(Value a, Value b);
  Value sub(Value a, Value b) { return add(a, -b); }
  // a + b, but a - b in the lanes of `subtracted`. Both have no sign outside.
  Value add_or_subtract(Value a, Value b, unsigned subtracted);
  Value mul(const Factors& factors, Value a);
  // By one constant in every lane; its sign moves out of the constant.
  Value mul(const Number& factor, Value a);
  Value product(Value a, Value b);
  Value scale(Value a, unsigned flips = 0);
  // Carries out a sign that is still outside as 0.0 - a.
  Value settle_sign(Value a);
  // Carries out a sign that is still outside as a sign flip.
  Value settle_flip(Value a);
  Value widen(Value a);
  Value round(Value a);

  // Makes lane `lane` of `value` the destination's element `element`. A sign still outside the
  // node is carried out here.
  void output(int element, Value value, int lane = 0);

  // Nodes made from here on belong to this stage, for readers of generated code.
  void begin_stage(const Stage& stage);

  Precision sample_precision() const { return sample_; }
  int size() const { return static_cast<int>(nodes_.size()); }
  const Node& operator[](NodeId id) const { return nodes_[id]; }
  const std::vector<Output>& outputs() const { return outputs_; }
  const std::vector<Stage>& stages() const { return stages_; }
  const std::vector<Number>& numbers() const { return numbers_; }
  const Number& factor(const Node& node, int lane) const { return numbers_[node.factors[lane]]; }
  Factors factors(const Node& node) const;

  // The nodes that `node` reads, in order, each once.
  std::vector<NodeId> operands(NodeId node) const;
  // Whether an output depends on the node.
  std::vector<bool> live_nodes() const;
  // The nodes that the roots depend on, and the roots, each behind its operands. It doesn't hang on
  // the order in which they were made, which is the compiler's choice between the operands of one
  // expression.
  std::vector<NodeId> nodes_behind(const std::vector<NodeId>& roots) const;

 private:
  Value unary(Op op, Value a, Precision precision);
  Node shaped_like(NodeId id) const;
  NodeId intern(Node node);
  int number_index(const Number& number);

  Precision sample_;
  std::vector<Node> nodes_;
  using Key = std::vector<int>;
  struct KeyHash {
    std::size_t operator()(const Key& key) const;
  };
  std::unordered_map<Key, NodeId, KeyHash> known_;
  std::vector<Number> numbers_;
  std::map<Number::Bits, int> known_numbers_;
  std::vector<Stage> stages_ = {{"t", ""}};
  int stage_ = 0;
  std::vector<Output> outputs_;
};

// Rebuilds a graph node by node into a new one. `make(new_graph, old_id, new_value)` gives the new
// value of a live old node; `new_value` is that of every earlier one. Elements of the destination
// may get other numbers.
using NewValues = std::vector<Value>;
template <class Make, class Element = std::identity>
Graph rebuild(const Graph& old, Make make, Element element = {});

// The copy of `old[id]` in `graph`, with its operands translated.
Value copy_node(const Graph& old, NodeId id, Graph& graph, const NewValues& new_value);

template <class Make, class Element>
Graph rebuild(const Graph& old, Make make, Element element) {
  Graph graph(old.sample_precision());
  NewValues new_value(old.size());
  const std::vector<bool> live = old.live_nodes();
  for (NodeId id = 0; id < old.size(); ++id) {
    if (!live[id]) continue;
    graph.begin_stage(old.stages()[old[id].stage]);
    new_value[id] = make(graph, id, new_value);
  }
  for (const Output& out : old.outputs()) {
    graph.output(element(out.element), new_value[out.from.node], out.from.index);
  }
  return graph;
}

}  // namespace gen
