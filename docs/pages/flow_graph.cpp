#include "docs/pages/flow_graph.h"

#include <stdexcept>

namespace pages {
namespace {

using gen::NodeId;
using gen::Op;

// "2 * S19_6_im" as "2 · S19,6 im".
std::string constant_name(const gen::Number& number) {
  std::string text = number.is_negative() ? "−" : "";
  bool after_symbol = false;
  for (char c : number.name()) {
    if (c == '*') {
      text += "·";
    } else if (c == '_') {
      text += after_symbol ? " " : ",";
      after_symbol = true;
    } else {
      text += c;
    }
  }
  return text;
}

class Reader {
 public:
  explicit Reader(const gen::Graph& graph) : graph_(graph), node_of_(graph.size(), -1) {}

  FlowGraph read(const std::vector<std::string>& destination_names) {
    const std::vector<bool> live = graph_.live_nodes();
    for (NodeId id = 0; id < graph_.size(); ++id) {
      if (live[id] && graph_[id].op != Op::kZero) node_of_[id] = add(id);
    }
    for (const gen::Output& out : graph_.outputs()) {
      if (graph_[out.from.node].op == Op::kZero) continue;
      const int node = new_node(FlowNode::Kind::kDestination, destination_names.at(out.element));
      connect(node_of_[out.from.node], node);
    }
    return std::move(flow_);
  }

 private:
  int add(NodeId id) {
    const gen::Node& node = graph_[id];
    if (node.lane_count != 1) throw std::logic_error("no picture of vectors");
    switch (node.op) {
      case Op::kInput:
        return new_node(FlowNode::Kind::kSource, "x" + std::to_string(node.element));
      case Op::kAdd:
      case Op::kSub: {
        const bool difference = node.op == Op::kSub;
        const int result = new_node(difference ? FlowNode::Kind::kDifference : FlowNode::Kind::kSum,
                                    difference ? "−" : "+");
        connect(node_of_[node.a], result);
        connect(node_of_[node.b], result, difference);
        return result;
      }
      case Op::kMul: {
        const gen::Number& factor = graph_.factor(node, 0);
        const int result = new_node(FlowNode::Kind::kProduct, "× " + constant_name(factor));
        flow_.nodes[result].hint = gen::double_literal(factor.value());
        connect(node_of_[node.a], result);
        return result;
      }
      case Op::kFromZero: {
        const int result = new_node(FlowNode::Kind::kNegative, "0 −");
        connect(node_of_[node.a], result, true);
        return result;
      }
      case Op::kScale:
      case Op::kWiden:
      case Op::kRound:
        return node_of_[node.a];
      default:
        throw std::logic_error("no picture of such a node");
    }
  }

  int new_node(FlowNode::Kind kind, const std::string& label) {
    flow_.nodes.push_back({kind, label, ""});
    return static_cast<int>(flow_.nodes.size()) - 1;
  }

  void connect(int from, int to, bool subtracted = false) {
    flow_.edges.push_back({from, to, subtracted});
  }

  const gen::Graph& graph_;
  std::vector<int> node_of_;
  FlowGraph flow_;
};

}  // namespace

FlowGraph flow_graph(const gen::Graph& graph, const std::vector<std::string>& destination_names) {
  return Reader(graph).read(destination_names);
}

}  // namespace pages
