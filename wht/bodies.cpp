// The bodies of the long orders' passes, as C++.
#include <sstream>

#include "gen/count.h"
#include "gen/emit.h"
#include "wht/wht.h"

namespace wht {
namespace {

using gen::Graph;
using gen::Precision;

enum class Kind { kRow, kColumn, kScaledColumn };

struct Body {
  Kind kind;
  Precision precision;
  int size;           // log2 of a row's samples; a column's rows
  const char* order;  // the order of the statements that measured fastest
};

// What the plans ask for.
constexpr Body kBodies[] = {
    {Kind::kRow, Precision::kSingle, 5, "bisect 10"},
    {Kind::kRow, Precision::kSingle, 6, "bisect 10"},
    {Kind::kColumn, Precision::kSingle, 8, "bisect 10"},
    {Kind::kScaledColumn, Precision::kSingle, 8, "bisect 10"},
    {Kind::kScaledColumn, Precision::kSingle, 16, "bisect 10"},
    {Kind::kScaledColumn, Precision::kSingle, 32, "bisect 6"},
    {Kind::kRow, Precision::kDouble, 5, "bisect 13"},
    {Kind::kRow, Precision::kDouble, 7, "bisect 13"},
    {Kind::kColumn, Precision::kDouble, 8, "bisect 13"},
    {Kind::kScaledColumn, Precision::kDouble, 8, "bisect 13"},
    {Kind::kScaledColumn, Precision::kDouble, 16, "bisect 13"},
};

Graph graph_of(const Body& body) {
  if (body.kind == Kind::kRow) return row_graph(body.precision, body.size);
  return column_graph(body.precision, body.size, body.kind == Kind::kScaledColumn);
}

std::string emit(const Body& body) {
  const bool single = body.precision == Precision::kSingle;
  const std::string element = single ? "float" : "double", vector = single ? "F4" : "D2";
  const Graph graph = graph_of(body);
  const Graph code = gen::lowered(graph, static_cast<int>(graph.outputs().size()), true);

  std::ostringstream text;
  text << "// " << gen::count_operations(graph).additions << " additions; order: " << body.order
       << "\n";
  for (const gen::Stage& stage : graph.stages()) {
    if (stage.description.empty()) continue;
    text << "//   " << stage.name << ": " << stage.description << "\n";
  }
  if (body.kind == Kind::kRow) {
    text << "template <>\nstruct Row<" << element << ", " << body.size << "> {\n"
         << "  template <class Memory>\n"
         << "  ZULGEN_INLINE static void run(const " << element << "* x, " << element << "* y) {\n";
  } else {
    text << "template <>\nstruct Column<" << element << ", " << body.size << ", "
         << (body.kind == Kind::kScaledColumn ? "true" : "false") << "> {\n"
         << "  template <class Memory, class Source, class Destination>\n"
         << "  ZULGEN_INLINE static void run(Source x, Destination y, [[maybe_unused]] " << vector
         << " s) {\n";
  }
  text << gen::emit_body(code, gen::schedule(code, gen::parse_order(body.order)), {})
       << "  }\n};\n\n";
  return text.str();
}

}  // namespace

std::string body_header() {
  std::string text =
      "// Generated from the tables of wht; a change belongs there.\n"
      "#include \"wht/passes.h\"\n\n"
      "namespace zulgen {\n\n";
  for (const Body& body : kBodies) text += emit(body);
  return text + "}  // namespace zulgen\n";
}

}  // namespace wht
