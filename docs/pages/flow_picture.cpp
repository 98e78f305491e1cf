#include "docs/pages/flow_picture.h"

#include <algorithm>
#include <set>

#include "docs/pages/layered_layout.h"

namespace pages {
namespace {

constexpr double kFontSize = 11, kRadius = 8, kBoxHeight = 17, kMargin = 12;

const char* class_of(FlowNode::Kind kind) {
  switch (kind) {
    case FlowNode::Kind::kSource:
      return "source";
    case FlowNode::Kind::kSum:
      return "sum";
    case FlowNode::Kind::kDifference:
      return "difference";
    case FlowNode::Kind::kProduct:
      return "product";
    case FlowNode::Kind::kNegative:
      return "difference";
    case FlowNode::Kind::kDestination:
      return "destination";
  }
  return "";
}

bool is_round(const FlowNode& node) {
  return node.kind == FlowNode::Kind::kSum || node.kind == FlowNode::Kind::kDifference;
}

Size size_of(const FlowNode& node) {
  if (is_round(node)) return {2 * kRadius, 2 * kRadius};
  return {text_width(node.label, kFontSize) + 10, kBoxHeight};
}

std::string number(double value) { return coordinate(value + kMargin); }

std::string drawn_node(const FlowNode& node, Point at) {
  const Size size = size_of(node);
  std::string text = std::string("<g class=\"") + class_of(node.kind) + "\">";
  if (!node.hint.empty()) text += "<title>" + escaped(node.hint) + "</title>";
  if (is_round(node)) {
    text += "<circle cx=\"" + number(at.x) + "\" cy=\"" + number(at.y) + "\" r=\"" +
            coordinate(kRadius) + "\"/>";
  } else {
    text += "<rect x=\"" + number(at.x - size.width / 2) + "\" y=\"" +
            number(at.y - size.height / 2) + "\" width=\"" + coordinate(size.width) +
            "\" height=\"" + coordinate(size.height) + "\" rx=\"4\"/>";
  }
  return text + "<text x=\"" + number(at.x) + "\" y=\"" + number(at.y + 3.8) + "\">" +
         escaped(node.label) + "</text></g>\n";
}

// The pieces of a line from the right side of a node to the left side of another: each from one
// column into the next and through it.
std::vector<std::string> pieces(const std::vector<Point>& route, double begin, double end) {
  std::vector<std::string> result;
  for (std::size_t i = 0; i + 1 < route.size(); i += 2) {
    const Point leave = route[i], enter = route[i + 1];
    const std::string middle = number((leave.x + enter.x) / 2) + " ";
    const bool is_last = i + 2 == route.size();
    result.push_back((i == 0 ? "M" + number(begin) + " " + number(leave.y) + "H" + number(leave.x)
                             : "M" + number(leave.x) + " " + number(leave.y)) +
                     "C" + middle + number(leave.y) + " " + middle + number(enter.y) + " " +
                     number(enter.x) + " " + number(enter.y) + "H" +
                     number(is_last ? end : route[i + 2].x));
  }
  return result;
}

std::string joined(const std::set<std::string>& pieces) {
  std::string text;
  for (const std::string& piece : pieces) text += piece;
  return text;
}

// Columns with many lines between them need room for these.
LayoutOptions options_of(const FlowGraph& flow) {
  LayoutOptions options;
  options.row_gap = 8;
  options.column_gap = std::clamp(42 + 0.12 * static_cast<double>(flow.nodes.size()), 52.0, 120.0);
  return options;
}

}  // namespace

Picture flow_picture(const FlowGraph& flow, const std::string& title, const std::string& style) {
  std::vector<Size> sizes;
  for (const FlowNode& node : flow.nodes) sizes.push_back(size_of(node));
  std::vector<Arc> arcs;
  for (const FlowEdge& edge : flow.edges) arcs.push_back({edge.from, edge.to});
  const Layout layout = lay_out(sizes, arcs, options_of(flow));

  Picture picture;
  picture.size = {layout.size.width + 2 * kMargin, layout.size.height + 2 * kMargin};
  const std::string width = coordinate(picture.size.width);
  const std::string height = coordinate(picture.size.height);
  // Lines out of one value share pieces, which are drawn once. The last piece tells that the value
  // is subtracted.
  std::set<std::string> plain, subtracted;
  for (std::size_t i = 0; i < flow.edges.size(); ++i) {
    const FlowEdge& edge = flow.edges[i];
    auto drawn = pieces(layout.routes[i], layout.centres[edge.from].x + sizes[edge.from].width / 2,
                        layout.centres[edge.to].x - sizes[edge.to].width / 2);
    (edge.subtracted ? subtracted : plain).insert(drawn.back());
    plain.insert(drawn.begin(), drawn.end() - 1);
  }
  std::string nodes;
  for (std::size_t i = 0; i < flow.nodes.size(); ++i) {
    nodes += drawn_node(flow.nodes[i], layout.centres[i]);
  }
  picture.svg =
      "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" + width + "\" height=\"" + height +
      "\" viewBox=\"0 0 " + width + " " + height + "\">\n<title>" + escaped(title) +
      "</title>\n<style>\n" + style + "</style>\n" + "<path class=\"added\" d=\"" + joined(plain) +
      "\"/>\n<path class=\"subtracted\" d=\"" + joined(subtracted) + "\"/>\n" + nodes + "</svg>\n";
  return picture;
}

}  // namespace pages
