#include <algorithm>

#include "docs/pages/decomposition.h"
#include "docs/pages/markup.h"
#include "docs/pages/site.h"
#include "docs/pages/tables.h"
#include "docs/pages/tree_picture.h"

namespace pages {
namespace {

using gen::Precision;

std::string kernel_table(const std::map<Key, Entry>& entries) {
  std::string rows;
  for (const Transform transform : kTransforms) {
    for (const Precision precision : kPrecisions) {
      const Entry& entry = entries.at({transform, precision});
      rows += table_row(
          {title(transform), title(precision), "<code>" + entry.kernel.name + "</code>"},
          {std::to_string(entry.counts.additions), std::to_string(entry.counts.multiplications),
           shown(entry.error, 2), shown(entry.speed.cycles, 1), shown(entry.speed.ratio, 2)});
    }
  }
  return table(
      "<tr><th>Transform</th><th>Precision</th><th>Kernel</th>"
      "<th class=\"n\">Additions</th><th class=\"n\">Multipli&#173;cations</th>"
      "<th class=\"n\">Error, u</th><th class=\"n\">Cycles</th><th class=\"n\">FFTW / ours</th>"
      "</tr>",
      rows);
}

// Wider than half of the page.
constexpr double kWideTree = 540;

std::string tree(const std::string& heading, Transform transform, const Entry& entry) {
  const Picture picture = tree_picture(decomposition(transform, entry.kernel));
  return std::string("<section") + (picture.size.width > kWideTree ? " class=\"wide\"" : "") +
         "><h3>" + heading + "</h3>\n<p class=\"recipe\"><code>" + escaped(entry.kernel.recipe) +
         "</code></p>\n<div class=\"scroll\">" + picture.svg + "</div></section>\n";
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

std::string crumbs(const Catalogue& catalogue, int length) {
  std::string text = "<a href=\"index.html\">All lengths</a>";
  const auto link = [&](int to, const std::string& label) {
    if (catalogue.by_length.contains(to)) {
      text += " <a href=\"" + length_page_name(to) + "\">" + label + "</a>";
    }
  };
  link(length - 1, "← " + std::to_string(length - 1));
  link(length + 1, std::to_string(length + 1) + " →");
  return text;
}

bool has_rader(const Branch& branch) {
  return branch.note.find("Rader") != std::string::npos ||
         std::any_of(branch.parts.begin(), branch.parts.end(), has_rader);
}

std::string flow_figure(const Entry& entry, const Picture& picture) {
  const std::string& kernel = entry.kernel.name;
  const std::string file = flow_picture_name(entry.kernel.length());
  std::string constants;
  if (entry.counts.multiplications > 0) constants += " cos 1/12 is the cosine of 1/12 of a turn.";
  if (has_rader(decomposition(Transform::kRealForward, entry.kernel))) {
    constants += " S13,2 re stands for a constant of Rader’s form of length 13.";
  }
  return "<h2>Data flow</h2>\n"
         "<p>The real forward transform in double precision, <code>" +
         kernel +
         "</code>, from the samples to the parts of the bins, before scaling. A dashed line is "
         "subtracted." +
         constants + " <a href=\"" + file +
         "\">The picture alone</a> is for zooming, and tells a constant’s value under the "
         "pointer.</p>\n"
         "<figure class=\"flow\"><a href=\"" +
         file + "\"><img src=\"" + file + "\" width=\"" + coordinate(picture.size.width) +
         "\" height=\"" + coordinate(picture.size.height) + "\" alt=\"Data flow of " + kernel +
         "\"/></a></figure>\n";
}

}  // namespace

std::string length_page_name(int length) { return "length-" + std::to_string(length) + ".html"; }
std::string flow_picture_name(int length) { return "flow-" + std::to_string(length) + ".svg"; }

Picture flow_of_length(const Catalogue& catalogue, int length, const std::string& style) {
  const Entry& entry = catalogue.at(length, Transform::kRealForward, Precision::kDouble);
  std::vector<std::string> names;
  for (int element = 0; element < entry.kernel.destination_elements; ++element) {
    names.push_back("X" + std::to_string(element / 2) + (element % 2 == 0 ? " re" : " im"));
  }
  return flow_picture(flow_graph(entry.kernel.graph(), names), entry.kernel.name, style);
}

std::string length_page(const Catalogue& catalogue, int length, const Picture& flow) {
  const std::map<Key, Entry>& entries = catalogue.by_length.at(length);
  const Entry& drawn = entries.at({Transform::kRealForward, Precision::kDouble});
  const std::string heading = "Length " + std::to_string(length);
  return page(
      heading, crumbs(catalogue, length),
      "<h1>" + heading + " <small>" + (is_prime(length) ? "prime" : factors(length)) +
          "</small></h1>\n" + kernel_table(entries) +
          "<p class=\"note\">Operations are on real numbers; error and cycles are <a "
          "href=\"index.html#figures\">measured</a>. The Pack and Perm layouts of the "
          "real transforms have the arithmetic of CCS. Multiplications of the inverse ones include "
          "the "
          "doubling of parts that stand for two bins.</p>\n"
          "<h2>Decomposition</h2>\n"
          "<p>A block on the left is put together from the blocks on its right; the topmost of "
          "these touches the input first. An inverse real kernel is the mirror image of the "
          "network that its tree describes. A double-precision complex kernel runs its tree on "
          "real and imaginary parts side by side.</p>\n" +
          trees(entries) + flow_figure(drawn, flow));
}

}  // namespace pages
