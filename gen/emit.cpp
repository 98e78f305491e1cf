#include "gen/emit.h"

#include <algorithm>
#include <cctype>
#include <fstream>
#include <map>
#include <set>
#include <sstream>
#include <stdexcept>

#include "gen/schedule.h"

namespace gen {
namespace {

// "cos 1/12" becomes cos_1_12, "1/2" becomes c_1_2.
std::string identifier(const Number& number) {
  std::string result = number.name();
  for (char& c : result) {
    if (!std::isalnum(static_cast<unsigned char>(c))) c = '_';
  }
  if (std::isdigit(static_cast<unsigned char>(result[0]))) result = "c_" + result;
  return result;
}

// Needs no name.
bool is_whole(const Number& number) {
  return number.value() == 0 || number.value() == 1 || number.value() == -1;
}

// Twice a scalar, which has an operation of its own.
bool is_doubling(const Graph& graph, const Node& node) {
  return node.op == Op::kMul && node.lane_count == 1 && graph.factor(node, 0) == Number(2);
}

std::string type_of(const Node& node) { return type_name(node.precision, node.lane_count); }

std::string list(const std::vector<std::string>& items) {
  std::string result;
  for (const std::string& item : items) result += (result.empty() ? "" : ", ") + item;
  return result;
}

// One store: consecutive elements of the destination out of one node.
struct Store {
  std::string function;  // empty for a scalar
  int element, count;
  NodeId node;
  std::string part = {};  // the function that takes out of the node what is stored
};

class StorePlan {
 public:
  explicit StorePlan(const Graph& graph) : graph_(graph) {
    for (const Output& out : graph.outputs()) outputs_[out.element] = out.from;
  }

  // Whole vectors where all lanes go side by side to a place aligned as the array is, else halves;
  // or, `anywhere`, as many lanes at a time as can be.
  std::vector<Store> stores(bool anywhere) const {
    std::vector<Store> stores;
    for (auto at = outputs_.begin(); at != outputs_.end();) {
      stores.push_back(anywhere ? store_anywhere(at->first, at->second)
                                : store_aligned(at->first, at->second));
      std::advance(at, stores.back().count);
    }
    return stores;
  }

 private:
  bool is_run(int element, const Lane& first, int count) const {
    for (int i = 0; i < count; ++i) {
      const auto at = outputs_.find(element + i);
      if (at == outputs_.end() || at->second != Lane{first.node, first.index + i}) return false;
    }
    return true;
  }

  Store store_aligned(int element, const Lane& lane) const {
    const int width = graph_[lane.node].lane_count, half = std::max(1, width / 2);
    if (width == 1) return {"", element, 1, lane.node};
    if (lane.index == 0 && element % width == 0 && is_run(element, lane, width)) {
      return {"store", element, width, lane.node};
    }
    if (lane.index % half == 0 && is_run(element, lane, half)) {
      return {lane.index == 0 ? "store_low" : "store_high", element, half, lane.node};
    }
    throw std::logic_error("an output that no store can take");
  }

  Store store_anywhere(int element, const Lane& lane) const {
    const Node& node = graph_[lane.node];
    if (node.lane_count == 1) return {"", element, 1, lane.node};
    int count = node.lane_count;
    while (lane.index % count != 0 || !is_run(element, lane, count)) count /= 2;
    const int per_128_bits = node.precision == Precision::kSingle ? 4 : 2;
    Store store{"store", element, count, lane.node};
    int index = lane.index;
    if (node.lane_count > per_128_bits && count < node.lane_count) {
      store.part = index < per_128_bits ? "low_half" : "high_half";
      index %= per_128_bits;
    }
    if (count < per_128_bits) {
      store.function = count == 1 ? "store_lane<" + std::to_string(index) + ">"
                                  : (index == 0 ? "store_low" : "store_high");
    }
    return store;
  }

  const Graph& graph_;
  std::map<int, Lane> outputs_;
};

std::vector<Store> whole_stores(const Graph& graph) {
  std::vector<Store> stores;
  for (const Output& out : graph.outputs()) stores.push_back({"", out.element, 0, out.from.node});
  return stores;
}

class BodyWriter {
 public:
  BodyWriter(const Graph& graph, const BodyStyle& style)
      : graph_(graph), style_(style), names_(graph.size()) {
    for (const Store& store : style.stores_by_accessor
                                  ? whole_stores(graph)
                                  : StorePlan(graph).stores(!style.memory_policy)) {
      stores_[store.node].push_back(store);
    }
    if (style.stores_by_accessor) return;
    const std::vector<bool> live = graph.live_nodes();
    for (NodeId id = 0; id < graph.size(); ++id) {
      if (!live[id] || !is_load(graph, id) || graph[id].op == Op::kZero) continue;
      if (graph[id].op == Op::kInput && !is_loaded_alone(id, live)) continue;
      for (int element : elements(id)) ++loads_left_[element];
    }
  }

  std::string write(const std::vector<NodeId>& order) {
    for (NodeId id : order) {
      for (NodeId operand : graph_.operands(id)) {
        if (is_load(graph_, operand)) define(operand);
      }
      define(id);
      for (const Store& store : stores_[id]) pending_.push_back(store);
      write_stores();
    }
    for (const auto& [id, stores] : stores_) {
      if (!is_load(graph_, id)) continue;
      define(id);
      pending_.insert(pending_.end(), stores.begin(), stores.end());
    }
    write_stores();
    if (!pending_.empty()) throw std::logic_error("a store waits for a load that never comes");
    return text_.str();
  }

 private:
  // The elements of a vector count as one load, and the inputs it is made of as none.
  bool is_loaded_alone(NodeId input, const std::vector<bool>& live) const {
    bool is_part = false;
    for (NodeId id = 0; id < graph_.size(); ++id) {
      if (!live[id]) continue;
      const std::vector<NodeId> operands = graph_.operands(id);
      if (std::find(operands.begin(), operands.end(), input) == operands.end()) continue;
      if (!is_load(graph_, id)) return true;
      is_part = true;
    }
    return !is_part;
  }

  // The elements of the source that a load brings in.
  std::vector<int> elements(NodeId id) const {
    if (graph_[id].op != Op::kLanes) return {graph_[id].element};
    std::vector<int> result;
    for (const NodeId input : graph_.operands(id)) {
      if (graph_[input].op == Op::kInput) result.push_back(graph_[input].element);
    }
    return result;
  }

  // The name of what a load reads from.
  std::string array(const Node& node) const {
    return node.op == Op::kFetch ? style_.accessors.at(node.array) : "x";
  }

  // A load's name tells how it is made.
  std::string load_name(NodeId id, int element) {
    std::string name = array(graph_[id]) + std::to_string(element);
    if (graph_[id].op == Op::kLanes) {
      const Move load = move(id);
      const std::string way = load.function.substr(0, load.function.find('<'));
      name += load.elements.size() == 2 ? "_" + std::to_string(load.elements[1])
                                        : way.substr(std::string("load").size());
    }
    if (!used_names_.insert(name).second) {
      name += "_" + type_of(graph_[id]);
      used_names_.insert(name);
    }
    return name;
  }

  void define(NodeId id) {
    if (!names_[id].empty()) return;
    const Node& node = graph_[id];
    const std::string value = expression(id);
    if (is_load(graph_, id) && node.op != Op::kZero) {
      const std::vector<int> loaded = elements(id);
      names_[id] = load_name(id, loaded[0]);
      for (int element : loaded) --loads_left_[element];
    } else {
      const std::string prefix = node.op == Op::kZero ? "zero" : graph_.stages()[node.stage].name;
      names_[id] = prefix + std::to_string(name_counts_[prefix]++);
    }
    text_ << "  const " << type_of(node) << " " << names_[id] << " = " << value << ";\n";
  }

  std::string expression(NodeId id) {
    const Node& node = graph_[id];
    const auto name = [&](NodeId operand) { return names_[operand]; };
    switch (node.op) {
      case Op::kInput:
        return "x[" + std::to_string(node.element) + "]";
      case Op::kFetch:
        return array(node) + ".load(" + std::to_string(node.element) + ")";
      case Op::kZero: {
        const std::string zero = node.precision == Precision::kSingle ? "0.0f" : "0.0";
        if (node.lane_count == 1) return zero;
        if (node.flips == 0) return "all" + type_of(node) + "(" + zero + ")";
        const auto lanes = by_lane(node, [&](bool flip) { return flip ? "-" + zero : zero; });
        return "lanes" + type_of(node) + "(" + list(lanes) + ")";
      }
      case Op::kLanes:
        return call(move(id), node);
      case Op::kFlipSigns:
        return node.lane_count == 1 ? "-" + name(node.a) : flipped(node, name(node.a));
      case Op::kFromZero:
        return (node.precision == Precision::kSingle ? "0.0f - " : "0.0 - ") + name(node.a);
      case Op::kAdd:
        if (node.flips == 0) return name(node.a) + " + " + name(node.b);
        if (subtracts_even_lanes(node)) {
          return "subtract_add(" + name(node.a) + ", " + name(node.b) + ")";
        }
        return name(node.a) + " + " + flipped(node, name(node.b));
      case Op::kSub:
        return name(node.a) + " - " + name(node.b);
      case Op::kMul:
        if (is_doubling(graph_, node)) return "doubled(" + name(node.a) + ")";
        return factor(node) + " * " + name(node.a);
      case Op::kProduct:
        return name(node.a) + " * " + name(node.b);
      case Op::kScale:
        return (node.flips == 0 ? scale(node) : flipped(node, scale(node))) + " * " + name(node.a);
      case Op::kWiden:
        return (node.lane_count == 1   ? "static_cast<double>("
                : node.lane_count == 2 ? "widened("
                                       : "widened_four(") +
               name(node.a) + ")";
      case Op::kRound:
        return (node.lane_count == 1 ? "static_cast<float>(" : "rounded(") + name(node.a) + ")";
    }
    return "";
  }

  std::string scale(const Node& node) const {
    return style_.memory_policy || node.lane_count == 1 ? "s" : "s" + type_of(node);
  }

  template <class Text>
  static std::vector<std::string> by_lane(const Node& node, Text text) {
    std::vector<std::string> lanes;
    for (int lane = 0; lane < node.lane_count; ++lane) {
      lanes.push_back(text((node.flips >> lane & 1) != 0));
    }
    return lanes;
  }

  static std::string flipped(const Node& node, const std::string& value) {
    const auto flips = by_lane(node, [](bool flip) { return std::string(flip ? "1" : "0"); });
    return "flip_signs<" + list(flips) + ">(" + value + ")";
  }

  std::string factor(const Node& node) const {
    std::vector<std::string> lanes;
    for (const Number& number : graph_.factors(node)) lanes.push_back(constant(node, number));
    if (node.lane_count == 1) return lanes[0];
    if (std::all_of(lanes.begin(), lanes.end(), [&](const auto& l) { return l == lanes[0]; })) {
      return "all" + type_of(node) + "(" + lanes[0] + ")";
    }
    return "lanes" + type_of(node) + "(" + list(lanes) + ")";
  }

  static std::string constant(const Node& node, const Number& number) {
    if (is_whole(number)) {
      return node.precision == Precision::kSingle ? float_literal(number.value())
                                                  : double_literal(number.value());
    }
    return (number.is_negative() ? "-" : "") + identifier(number);
  }

  Move move(NodeId id) const {
    const auto move = style_.moves->single_move(graph_, id);
    if (!move) throw std::logic_error("a lane move that takes several instructions");
    return *move;
  }

  std::string call(const Move& move, const Node& node) const {
    std::vector<std::string> arguments;
    for (const NodeId value : move.values) arguments.push_back(names_[value]);
    for (const int element : move.elements) arguments.push_back("x + " + std::to_string(element));
    std::string function = move.function;
    if (move.is_whole_load) {
      function = style_.memory_policy ? "Memory::load" : "load<" + type_of(node) + ">";
    }
    return function + "(" + list(arguments) + ")";
  }

  void write_stores() {
    const auto blocked = [&](const Store& store) {
      for (int i = 0; i < store.count; ++i) {
        if (loads_left_[store.element + i] > 0) return true;
      }
      return false;
    };
    std::vector<Store> still_pending;
    for (const Store& store : pending_) {
      if (blocked(store)) {
        still_pending.push_back(store);
        continue;
      }
      const std::string address = "y + " + std::to_string(store.element);
      if (style_.stores_by_accessor) {
        text_ << "  y.store(" << store.element << ", " << names_[store.node] << ");\n";
      } else if (store.function.empty()) {
        text_ << "  y[" << store.element << "] = " << names_[store.node] << ";\n";
      } else {
        const bool by_policy = store.function == "store" && style_.memory_policy;
        const std::string& name = names_[store.node];
        text_ << "  " << (by_policy ? "Memory::" : "") << store.function << "(" << address << ", "
              << (store.part.empty() ? name : store.part + "(" + name + ")") << ");\n";
      }
    }
    pending_ = std::move(still_pending);
  }

  const Graph& graph_;
  const BodyStyle& style_;
  std::vector<std::string> names_;
  std::map<std::string, int> name_counts_;
  std::set<std::string> used_names_;  // of loads
  std::map<NodeId, std::vector<Store>> stores_;
  std::map<int, int> loads_left_;  // by element of the source
  std::vector<Store> pending_;
  std::ostringstream text_;
};

}  // namespace

std::string type_name(Precision precision, int lane_count) {
  const bool single = precision == Precision::kSingle;
  if (lane_count == 1) return single ? "float" : "double";
  return (single ? "F" : "D") + std::to_string(lane_count);
}

std::string emit_constants(const Graph& graph) {
  std::map<std::string, std::string> definitions;
  const std::vector<bool> live = graph.live_nodes();
  for (NodeId id = 0; id < graph.size(); ++id) {
    const Node& node = graph[id];
    if (!live[id] || node.op != Op::kMul || is_doubling(graph, node)) continue;
    const bool single = node.precision == Precision::kSingle;
    for (const Number& number : graph.factors(node)) {
      if (is_whole(number)) continue;
      const Quad value = number.magnitude().value();
      definitions[identifier(number)] =
          std::string("  constexpr ") + (single ? "float " : "double ") + identifier(number) +
          " = " + (single ? float_literal(value) : double_literal(value)) + ";\n";
    }
  }
  std::string text;
  for (const auto& [name, definition] : definitions) text += definition;
  return text;
}

std::string emit_body(const Graph& graph, const std::vector<NodeId>& order,
                      const BodyStyle& style) {
  return BodyWriter(graph, style).write(order);
}

void write_if_changed(const std::string& path, const std::string& text) {
  {
    std::ifstream file(path, std::ios::binary);
    std::ostringstream known;
    known << file.rdbuf();
    if (file && known.str() == text) return;
  }
  std::ofstream file(path, std::ios::binary);
  file << text;
  if (!file.flush()) throw std::runtime_error("can't write " + path);
}

}  // namespace gen
