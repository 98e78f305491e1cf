// Draws a data flow.
#pragma once

#include <string>

#include "docs/pages/flow_graph.h"
#include "docs/pages/markup.h"

namespace pages {

// An SVG document that stands by itself. `style` is its style sheet.
Picture flow_picture(const FlowGraph& flow, const std::string& title, const std::string& style);

}  // namespace pages
