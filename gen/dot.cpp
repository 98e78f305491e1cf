#include "gen/dot.h"

#include <algorithm>
#include <map>
#include <sstream>
#include <vector>

namespace gen {
namespace {

class DotWriter {
 public:
  explicit DotWriter(const Kernel& kernel)
      : kernel_(kernel),
        graph_(kernel.graph()),
        is_complex_(kernel.transform == Transform::kComplexDft) {}

  std::string write() {
    text_ << "digraph " << kernel_.name << " {\n"
          << "  label=\"" << kernel_.name << ": " << kernel_.recipe << "\"; labelloc=t;\n"
          << "  rankdir=LR; nodesep=0.15; fontname=\"sans-serif\";\n"
          << "  node [shape=box, style=\"rounded,filled\", fillcolor=white, "
             "fontname=\"sans-serif\", fontsize=11, height=0.25, margin=\"0.08,0.03\"];\n"
          << "  edge [arrowsize=0.5];\n";
    const std::vector<bool> live = graph_.live_nodes();
    std::map<int, std::vector<NodeId>> by_stage;
    for (NodeId id = 0; id < graph_.size(); ++id) {
      if (!live[id] || (graph_[id].op == Op::kInput && is_only_picked(id, live))) continue;
      by_stage[is_source(id) ? kSourceStage : graph_[id].stage].push_back(id);
    }
    for (const auto& [stage, nodes] : by_stage) write_stage(stage, nodes);
    write_outputs();
    text_ << "}\n";
    return text_.str();
  }

 private:
  static constexpr int kSourceStage = -1;

  // Whether the node holds nothing but elements of the source.
  bool is_source(NodeId id) const {
    const std::vector<NodeId> operands = graph_.operands(id);
    return graph_[id].op == Op::kInput ||
           (graph_[id].op == Op::kLanes &&
            std::all_of(operands.begin(), operands.end(),
                        [&](NodeId operand) { return graph_[operand].op == Op::kInput; }));
  }

  bool is_only_picked(NodeId input, const std::vector<bool>& live) const {
    for (NodeId id = 0; id < graph_.size(); ++id) {
      if (live[id] && graph_[id].a == input) return false;
    }
    return true;
  }

  void write_stage(int stage, const std::vector<NodeId>& nodes) {
    const std::string description = stage == kSourceStage ? "source"
                                                          : graph_.stages()[stage].name + ": " +
                                                                graph_.stages()[stage].description;
    text_ << "  subgraph cluster_" << stage + 1 << " {\n    label=\"" << description
          << "\"; style=filled; fillcolor=" << (stage % 2 == 0 ? "aliceblue" : "whitesmoke")
          << "; color=grey;\n";
    for (NodeId id : nodes) text_ << "    n" << id << " [label=\"" << label(id) << "\"];\n";
    text_ << "  }\n";
    for (NodeId id : nodes) {
      if (is_source(id)) continue;
      for (NodeId operand : graph_.operands(id)) {
        // A dashed edge is subtracted.
        const bool minus = graph_[id].op == Op::kSub && operand == graph_[id].b;
        text_ << "  n" << operand << " -> n" << id << (minus ? " [style=dashed];\n" : ";\n");
      }
    }
  }

  std::string label(NodeId id) const {
    const Node& node = graph_[id];
    switch (node.op) {
      case Op::kInput:
        return elements("x", {node.element});
      case Op::kFetch:
        return "array " + std::to_string(node.array) + ": " + std::to_string(node.element);
      case Op::kZero:
        return "0";
      case Op::kLanes:
        return lanes_label(id);
      case Op::kFlipSigns:
        return "flip signs";
      case Op::kFromZero:
        return "0 -";
      case Op::kAdd:
        return "+";
      case Op::kSub:
        return "-";
      case Op::kProduct:
        return "*";
      case Op::kMul:
        return "* " + factors(node);
      case Op::kScale:
        return "* scale";
      case Op::kWiden:
        return "widen";
      case Op::kRound:
        return "round";
    }
    return "";
  }

  std::string lanes_label(NodeId id) const {
    const Node& node = graph_[id];
    std::vector<int> from_source, indices;
    for (int lane = 0; lane < node.lane_count; ++lane) {
      const Lane& pick = node.picks[lane];
      if (pick.node == kNoNode) continue;
      from_source.push_back(graph_[pick.node].element);
      indices.push_back(pick.index);
    }
    if (is_source(id)) return elements("x", from_source);
    if (graph_.operands(id).size() > 1) return "side by side";
    if (indices == std::vector<int>{1, 0, 3, 2}) return "swap re, im";
    if (indices == std::vector<int>{0, 1, 3, 2}) return "swap upper re, im";
    return "pick lanes";
  }

  // Elements of an array; both parts of a complex sample are told by the sample.
  std::string elements(const std::string& array, const std::vector<int>& which) const {
    std::string names;
    for (std::size_t i = 0; i < which.size(); ++i) {
      std::string name = array + std::to_string(which[i]);
      if (is_complex_) {
        name = array + std::to_string(which[i] / 2);
        const bool whole =
            which[i] % 2 == 0 && i + 1 < which.size() && which[i + 1] == which[i] + 1;
        if (whole) {
          ++i;
        } else {
          name += which[i] % 2 == 0 ? ".re" : ".im";
        }
      }
      names += (names.empty() ? "" : ", ") + name;
    }
    return names;
  }

  std::string factors(const Node& node) const {
    std::vector<std::string> names;
    for (const Number& number : graph_.factors(node)) {
      names.push_back((number.is_negative() ? "-" : "") + number.name());
    }
    names.erase(std::unique(names.begin(), names.end()), names.end());
    std::string result;
    for (const std::string& name : names) result += (result.empty() ? "" : ", ") + name;
    return result;
  }

  void write_outputs() {
    std::map<NodeId, std::vector<int>> by_node;
    for (const Output& out : graph_.outputs()) by_node[out.from.node].push_back(out.element);
    text_ << "  subgraph cluster_destination {\n    label=\"destination\"; style=filled; "
             "fillcolor=whitesmoke; color=grey;\n";
    for (const auto& [node, which] : by_node) {
      text_ << "    y" << node << " [label=\"" << elements("X", which) << "\"];\n";
    }
    text_ << "  }\n";
    for (const auto& [node, which] : by_node) text_ << "  n" << node << " -> y" << node << ";\n";
  }

  const Kernel& kernel_;
  const Graph graph_;
  const bool is_complex_;
  std::ostringstream text_;
};

}  // namespace

std::string dot_graph(const Kernel& kernel) { return DotWriter(kernel).write(); }

}  // namespace gen
