#include <algorithm>

#include "docs/pages/decomposition.h"
#include "docs/pages/markup.h"
#include "docs/pages/site.h"
#include "docs/pages/speed_tables.h"
#include "docs/pages/tables.h"
#include "docs/pages/tree_picture.h"

namespace pages {
namespace {

using gen::Precision;

std::string code(const Entry& entry) { return "<code>" + entry.kernel.name + "</code>"; }

std::string kernel_table(const std::map<Key, Entry>& entries) {
  std::string rows;
  for (const auto& [key, entry] : entries) {
    rows += table_row({title(key.first), title(key.second), code(entry)},
                      {std::to_string(entry.counts.additions),
                       std::to_string(entry.counts.multiplications), shown(entry.error, 2)});
  }
  return table("Kernels",
               table_head({"Transform", "Precision", "Kernel"},
                          {"Additions", "Multiplications", "Error, u"}),
               rows);
}

std::string instruction_table(const std::map<Key, Entry>& entries) {
  std::string rows;
  for (const auto& [key, entry] : entries) {
    for (const Written& written : entry.written) {
      const gen::VectorOperations& operations = written.operations;
      rows += table_row(
          {&written == &entry.written.front() ? code(entry) : "", written.target, written.order},
          {std::to_string(operations.additions), std::to_string(operations.multiplications),
           std::to_string(operations.moves), std::to_string(operations.sign_flips),
           std::to_string(operations.conversions)});
    }
  }
  return table(
      "Instructions",
      table_head({"Kernel", "Library", "Order"},
                 {"Additions", "Multiplications", "Lane moves", "Sign flips", "Conversions"}),
      rows);
}

// Wider than half of the page.
constexpr double kWideTree = 540;

std::string tree(const std::string& heading, Transform transform, const Entry& entry) {
  const Picture picture = tree_picture(decomposition(transform, entry.kernel));
  return std::string("<section") + (picture.size.width > kWideTree ? " class=\"wide\"" : "") +
         "><h3>" + heading + "</h3>\n<p class=\"recipe\"><code>" + escaped(entry.kernel.recipe) +
         "</code></p>\n<div class=\"scroll\" role=\"region\" tabindex=\"0\" aria-label=\"" +
         heading + "\">" + picture.svg + "</div></section>\n";
}

// One tree for kernels that share it.
std::string trees(const std::map<Key, Entry>& entries) {
  std::string text;
  for (const Precision precision : kPrecisions) {
    const std::string heading = "Complex DFT, " + title(precision) + " precision";
    const Entry& forward = entries.at({Transform::kComplexForward, precision});
    const Entry& inverse = entries.at({Transform::kComplexInverse, precision});
    text += tree(heading, Transform::kComplexForward, forward);
    if (inverse.kernel.recipe != forward.kernel.recipe) {
      text += tree(heading + ", inverse", Transform::kComplexInverse, inverse);
    }
  }
  for (const Transform transform :
       {Transform::kRealForward, Transform::kRealInverse, Transform::kHartley}) {
    const Entry& single = entries.at({transform, Precision::kSingle});
    const Entry& full = entries.at({transform, Precision::kDouble});
    text += tree(title(transform), transform, full);
    if (single.kernel.recipe != full.kernel.recipe) {
      text += tree(title(transform) + ", single precision", transform, single);
    }
  }
  return "<div class=\"trees\">\n" + text + "</div>\n";
}

std::string neighbours(const Catalogue& catalogue, int length) {
  std::string text;
  for (const auto& [to, label] : {std::pair(length - 1, "← " + std::to_string(length - 1)),
                                  std::pair(length + 1, std::to_string(length + 1) + " →")}) {
    if (!catalogue.by_length.contains(to)) continue;
    text += "<a href=\"" + length_page_name(to) + "\">" + label + "</a>\n";
  }
  return text;
}

bool has_rader(const Branch& branch) {
  return branch.note.find("Rader") != std::string::npos ||
         std::any_of(branch.parts.begin(), branch.parts.end(), has_rader);
}

// Every constant of the drawing once, with its value.
std::string constant_list(const FlowGraph& flow) {
  std::map<std::string, std::string> values;
  for (const FlowNode& node : flow.nodes) {
    if (node.hint.empty()) continue;
    values[node.label.substr(node.label.find(' ') + 1)] = node.hint;
  }
  if (values.empty()) return "";
  std::string items;
  for (const auto& [name, value] : values) {
    items += "<div><dt>" + escaped(name) + "</dt><dd>" + escaped(value) + "</dd></div>\n";
  }
  return "<h3>Its constants</h3>\n<dl class=\"constants\">\n" + items + "</dl>\n";
}

std::string flow_figure(const Entry& entry, const Flow& flow) {
  const std::string& kernel = entry.kernel.name;
  const std::string file = flow_picture_name(entry.kernel.length());
  std::string constants;
  if (entry.counts.multiplications > 0) constants += " cos 1/12 is the cosine of 1/12 of a turn.";
  if (has_rader(decomposition(Transform::kRealForward, entry.kernel))) {
    constants += " S13,2 re stands for a constant of Rader’s form of length 13.";
  }
  return "<h2>Data flow</h2>\n"
         "<p>The real forward transform in double precision, " +
         code(entry) +
         ", from the samples to the parts of the bins, before scaling. A dashed line is "
         "subtracted." +
         constants + " <a href=\"" + file +
         "\">The picture alone</a> is for zooming.</p>\n"
         "<div class=\"scroll flow\" role=\"region\" tabindex=\"0\" aria-label=\"Data flow\"><img "
         "src=\"" +
         file + "\" width=\"" + coordinate(flow.picture.size.width) + "\" height=\"" +
         coordinate(flow.picture.size.height) + "\" alt=\"Data flow of " + kernel + "\"/></div>\n" +
         constant_list(flow.graph);
}

}  // namespace

std::string length_page_name(int length) { return "length-" + std::to_string(length) + ".html"; }
std::string flow_picture_name(int length) { return "flow-" + std::to_string(length) + ".svg"; }

Flow flow_of_length(const Catalogue& catalogue, int length, const std::string& style) {
  const Entry& entry = catalogue.at(length, Transform::kRealForward, Precision::kDouble);
  std::vector<std::string> names;
  for (int element = 0; element < entry.kernel.destination_elements; ++element) {
    names.push_back("X" + std::to_string(element / 2) + (element % 2 == 0 ? " re" : " im"));
  }
  Flow flow = {flow_graph(entry.kernel.graph(), names), {}};
  flow.picture = flow_picture(flow.graph, entry.kernel.name, style);
  return flow;
}

std::string length_page(const Catalogue& catalogue, int length, const Flow& flow) {
  const std::map<Key, Entry>& entries = catalogue.by_length.at(length);
  const Entry& drawn = entries.at({Transform::kRealForward, Precision::kDouble});
  const std::string heading = "Length " + std::to_string(length);
  std::string speeds;
  for (const Architecture& architecture : kArchitectures) {
    std::vector<SpeedRow> rows;
    for (const auto& [key, entry] : entries) {
      rows.push_back({code(entry), entry.kernel.name});
    }
    speeds += "<h3>" + architecture.name + "</h3>\n" +
              speed_table(catalogue.figures, architecture, "Kernel", rows);
  }
  return page(
      heading,
      "<h1>" + heading + " <small>" + (is_prime(length) ? "prime" : factors(length)) +
          "</small></h1>\n<p class=\"neighbours\">" + neighbours(catalogue, length) + "</p>\n" +
          kernel_table(entries) + "<p class=\"note\">Operations are on real numbers; <a href=\"" +
          std::string(kReadingPageName) +
          "#figures\">what the figures mean</a>. The Pack and Perm layouts of the real transforms "
          "have the arithmetic and the error of CCS. Multiplications of the inverse ones include "
          "the doubling of parts that stand for two bins.</p>\n"
          "<h2>Cycles</h2>\n" +
          speeds + kNotMeasuredNote +
          "<h2>Decomposition</h2>\n"
          "<p>A block on the left is put together from the blocks on its right; the topmost of "
          "these touches the input first. An inverse real kernel is the mirror image of the "
          "network that its tree describes: there the topmost touches the output. A "
          "double-precision complex kernel runs its tree on real and imaginary parts side by side. "
          "<a href=\"" +
          std::string(kReadingPageName) + "#trees\">What the words stand for</a></p>\n" +
          trees(entries) + flow_figure(drawn, flow) +
          "<h2>Instructions</h2>\n"
          "<p>What each library’s kernels are written in: instructions of the aligned body, of one "
          "sample or one vector, loads and stores left out, and <a href=\"" +
          std::string(kReadingPageName) + "#orders\">the order</a> they stand in.</p>\n" +
          instruction_table(entries));
}

}  // namespace pages
