#include "gen/body.h"

#include <sstream>

#include "gen/count.h"
#include "gen/emit.h"
#include "gen/kernel.h"
#include "gen/side_by_side.h"

namespace gen {
namespace {

const char* element_name(Precision precision) {
  return precision == Precision::kSingle ? "float" : "double";
}

std::string arguments_of(const Body& body, Precision precision) {
  if (body.accessors.empty()) {
    const std::string element = element_name(precision);
    return "const " + element + "* x, " + element + "* y";
  }
  std::string arguments;
  for (const std::string& accessor : body.accessors) arguments += "const auto& " + accessor + ", ";
  return arguments + "const auto& y";
}

}  // namespace

std::string specialisation(const std::string& class_template, Precision precision, int lane_count,
                           int size) {
  const std::string vector =
      lane_count == 1 ? element_name(precision)
                      : (precision == Precision::kSingle ? "F" : "D") + std::to_string(lane_count);
  return class_template + "<" + vector + ", " + std::to_string(size) + ">";
}

std::string emit_body(const Body& body, const Form& form) {
  const Graph graph = body.graph();
  Graph code = lowered(graph, body.source_elements, body.loads_halves);
  if (body.is_doubled) code = side_by_side(code, body.source_elements);
  const Counts counts = count_operations(graph);
  BodyStyle style;
  style.moves = form.moves;
  style.memory_policy = form.moves->vector_bits() == 128;
  style.accessors = body.accessors;
  style.stores_by_accessor = !body.accessors.empty();

  std::ostringstream text;
  text << "// " << body.name << ": " << body.recipe << "\n//   " << counts.additions
       << " additions, " << counts.multiplications
       << " multiplications; order: " << to_string(form.order) << "\n";
  text << "template <>\nstruct " << body.name << " {\n"
       << "  ZULGEN_BODY static void run(" << arguments_of(body, graph.sample_precision())
       << ") {\n";
  const bool is_aligned = body.source_elements > 0 && !body.loads_halves;
  if (is_aligned && style.memory_policy) text << "    using Memory = Aligned;\n";
  std::istringstream statements(emit_constants(code) +
                                emit_body(code, schedule(code, form.order), style));
  for (std::string line; std::getline(statements, line);) text << "  " << line << "\n";
  text << "  }\n};\n";
  return text.str();
}

std::map<std::string, std::string> headers_of_bodies(const std::vector<Body>& bodies,
                                                     const FormOfBody& form_of) {
  std::map<std::string, std::string> headers;
  for (const Body& body : bodies) {
    std::string& header = headers[body.header];
    if (header.empty()) {
      header =
          "// Generated from the tables beside what it includes; a change belongs there.\n"
          "#pragma once\n\n#include \"" +
          body.declared_in + "\"\n\nnamespace zulgen {\n";
    }
    header += "\n" + emit_body(body, form_of(body));
  }
  for (auto& [name, text] : headers) text += "\n}  // namespace zulgen\n";
  return headers;
}

}  // namespace gen
