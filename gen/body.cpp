#include "gen/body.h"

#include <sstream>

#include "gen/count.h"
#include "gen/emit.h"
#include "gen/kernel.h"

namespace gen {

std::string emit_body_function(const Body& body) {
  const Graph graph = body.graph();
  const Graph code = lowered(graph, body.source_elements);
  const Counts counts = count_operations(graph);
  const std::string element = body.precision == Precision::kSingle ? "float" : "double";
  std::ostringstream text;
  text << "// " << body.name << ": " << body.recipe << "\n//   " << counts.additions
       << " additions, " << counts.multiplications
       << " multiplications; order: " << to_string(body.order) << "\n";
  text << "ZULGEN_BODY void " << body.name << "(";
  BodyStyle style;
  style.accessors = body.accessors;
  style.stores_by_accessor = !body.accessors.empty();
  if (body.accessors.empty()) {
    text << "const " << element << "* x, " << element << "* y";
  } else {
    for (const std::string& accessor : body.accessors) text << "const auto& " << accessor << ", ";
    text << "const auto& y";
  }
  text << ") {\n";
  if (body.source_elements > 0) text << "  using Memory = Aligned;\n";
  text << emit_constants(code) << emit_body(code, schedule(code, body.order), style) << "}\n";
  return text.str();
}

std::map<std::string, std::string> headers_of_bodies(const std::vector<Body>& bodies) {
  std::map<std::string, std::string> headers;
  for (const Body& body : bodies) {
    std::string& header = headers[body.family + ".h"];
    if (header.empty()) {
      header = "// Generated from the tables of " + body.family +
               "; a change belongs there.\n#pragma once\n\n#include \"frame/kernel.h\"\n"
               "#include \"frame/vector.h\"\n\nnamespace zulgen {\n";
    }
    header += "\n" + emit_body_function(body);
  }
  for (auto& [name, text] : headers) text += "\n}  // namespace zulgen\n";
  return headers;
}

}  // namespace gen
