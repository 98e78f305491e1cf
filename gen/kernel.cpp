#include "gen/kernel.h"

#include <cmath>
#include <set>
#include <sstream>
#include <stdexcept>

#include "gen/cost.h"
#include "gen/count.h"
#include "gen/emit.h"
#include "gen/moves.h"
#include "gen/rewrite.h"

namespace gen {
namespace {

// What stands above a kernel: how it is decomposed, what it costs, what its names mean.
std::string heading(const Kernel& kernel, const Graph& graph, const Order& order) {
  const Counts counts = count_operations(graph);
  std::ostringstream text;
  text << "// " << kernel.name << ": " << kernel.recipe << "\n";
  text << "//   " << counts.additions << " additions, " << counts.multiplications
       << " multiplications; order: " << to_string(order) << "\n";
  for (const Stage& stage : graph.stages()) {
    if (!stage.description.empty()) {
      text << "//   " << stage.name << ": " << stage.description << "\n";
    }
  }
  return text.str();
}

// The checks, and the factor that the flag selects as `factor`.
std::string check_text(const Kernel& kernel) {
  const bool single = kernel.is_single();
  const auto literal = single ? float_literal : double_literal;
  const std::string by_n = literal(one_over_n(kernel.length())), one = literal(1);
  const std::string by_sqrt_n = literal(one_over_sqrt_n(kernel.length()));
  const std::string check =
      "  const zulgResult result = check_arguments(source, destination, flag, ";
  const std::string fail = "  if (result != ZULG_OK) return result;\n";
  if (kernel.direction == Direction::kSelfInverse) {
    return std::string(single ? "  float" : "  double") + " factor;\n" + check + by_n + ", " +
           by_sqrt_n + ", factor);\n" + fail;
  }
  const bool forward = kernel.direction == Direction::kForward;
  return "  static constexpr auto kScale = scale_factors(" + (forward ? by_n : one) + ", " +
         (forward ? one : by_n) + ", " + by_sqrt_n + ");\n" + check + "kScale);\n" + fail;
}

// The scale factor spread over vectors of every type that is scaled.
std::string wide_factors(const Graph& graph) {
  std::set<std::string> types;
  for (NodeId id = 0; id < graph.size(); ++id) {
    if (graph[id].op == Op::kScale && graph[id].lane_count > 1) {
      types.insert(type_name(graph[id].precision, graph[id].lane_count));
    }
  }
  std::string text;
  for (const std::string& type : types) {
    text += "  const " + type + " s" + type + " = all" + type + "(s);\n";
  }
  return text;
}

std::string arguments_of(const Kernel& kernel) {
  const std::string type = kernel.sample_type();
  return "(const " + type + "* source, " + type + "* destination, zulgScaleFlag flag" +
         (kernel.has_work_argument ? ", [[maybe_unused]] void* work)" : ")");
}

std::string emit_alias(const Kernel& kernel) {
  return "// " + kernel.name + " is " + kernel.same_as + ".\nZULGEN_EXPORT zulgResult " +
         kernel.name + arguments_of(kernel) + "\n    __attribute__((alias(\"" + kernel.same_as +
         "\")));\n";
}

}  // namespace

Kernel kernel_of(const Signature& signature) {
  Kernel kernel;
  static_cast<Signature&>(kernel) = signature;
  kernel.name = name_of(signature);
  const int parts = signature.transform == Transform::kComplexDft ? 2 : 1;
  kernel.source_elements = kernel.destination_elements = parts * signature.length();
  return kernel;
}

Graph lowered(const Graph& graph, int source_elements, bool loads_halves) {
  const Graph code = absorb_sign_flips(number_from_outputs(graph));
  return synthesize_shuffles(load_vectors(code, source_elements, loads_halves));
}

Graph packed(const Graph& lowered, const std::vector<Pairing>& pairings, const MoveSet& moves) {
  Graph graph = number_from_outputs(lowered);
  for (const Pairing& pairing : pairings) {
    graph = number_from_outputs(pack(graph, pairing, moves));
  }
  prove_equal(lowered, graph);
  return graph;
}

Graph written_graph(const Kernel& kernel, const Graph& graph, const Form& form) {
  if (kernel.is_wide(*form.moves)) {
    const Graph code = lowered(kernel.wide_graph(), kernel.source_elements);
    prove_equal(graph, code);
    return code;
  }
  const Graph code = lowered(graph, kernel.source_elements, kernel.loads_halves);
  return form.pairings.empty() ? code : packed(code, form.pairings, *form.moves);
}

Quad one_over_n(int n) { return 1.0 / n; }
Quad one_over_sqrt_n(int n) { return 1.0 / std::sqrt(static_cast<double>(n)); }

WrittenKernel emit_kernel(const Kernel& kernel, const Form& form) {
  if (!kernel.is_generated) throw std::invalid_argument(kernel.name + " is written by hand");
  const Graph graph = kernel.graph(), code = written_graph(kernel, graph, form);
  const bool is_wide = kernel.is_wide(*form.moves), is_packed = !form.pairings.empty();
  const double bound = port_bound(count_vector_operations(code));
  if (!kernel.same_as.empty()) return {emit_alias(kernel), bound};
  const std::string element = kernel.is_single() ? "float" : "double";
  const bool any_address = is_wide || is_packed;
  const bool vectors = kernel.bodies != Bodies::kOne && !any_address;
  const std::string arguments = arguments_of(kernel);
  const std::string body_name = kernel.name.substr(4);
  const bool is_chosen = kernel.direction == Direction::kSelfInverse;
  const std::string factor = is_chosen ? "factor" : "kScale.by_flag[flag]";
  const std::string scale =
      vectors ? (element == "float" ? "allF4(" : "allD2(") + factor + ")" : factor;

  std::ostringstream text;
  text << heading(kernel, is_wide ? code : graph, form.order);
  text << "namespace {\n";
  if (vectors) text << "template <class Memory>\n";
  text << "inline zulgResult " << body_name << arguments << " {\n";
  text << check_text(kernel) << emit_constants(code);
  text << "  const auto x = reinterpret_cast<const " << element << "*>(source);\n";
  text << "  const auto y = reinterpret_cast<" << element << "*>(destination);\n";
  text << "  const auto s = " << scale << ";\n";
  if (any_address) text << wide_factors(code);
  text << "\n";
  BodyStyle style;
  style.moves = form.moves;
  style.memory_policy = vectors;
  text << emit_body(code, schedule(code, form.order), style);
  text << "  return ZULG_OK;\n}\n}  // namespace\n\n";

  static constexpr const char* kFunctions[] = {"SCALAR", "SHORT_VECTOR", "VECTOR"};
  const Bodies bodies = any_address ? Bodies::kOne : kernel.bodies;
  text << "ZULGEN_" << kFunctions[static_cast<int>(bodies)] << "_KERNEL(" << body_name << ",\n    "
       << arguments << ",\n    (source, destination, flag"
       << (kernel.has_work_argument ? ", work" : "") << "))\n";
  return {text.str(), bound};
}

}  // namespace gen
