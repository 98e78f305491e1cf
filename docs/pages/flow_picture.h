// Draws a data flow.
#pragma once

#include <string>

#include "docs/pages/flow_graph.h"
#include "docs/pages/layered_layout.h"

namespace pages {

struct Picture {
  std::string svg;
  Size size;
};

// An SVG document that stands by itself. `style` is its style sheet.
Picture flow_picture(const FlowGraph& flow, const std::string& title, const std::string& style);

}  // namespace pages
