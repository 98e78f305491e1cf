// Places a directed acyclic graph in columns, every edge from left to right.
//
// K. Sugiyama, S. Tagawa, M. Toda, "Methods for visual understanding of hierarchical system
// structures", IEEE Trans. Systems, Man, and Cybernetics 11 (1981): columns by depth, order within
// a column by the mean place of the neighbours, then positions.
#pragma once

#include <vector>

#include "docs/pages/markup.h"

namespace pages {

struct Point {
  double x = 0, y = 0;
};

struct Arc {
  int from = 0, to = 0;
};

struct LayoutOptions {
  double row_gap = 8;      // between nodes of a column
  double column_gap = 48;  // between columns
};

struct Layout {
  std::vector<Point> centres;  // of the nodes
  std::vector<int> columns;    // of the nodes
  // Of the arcs: where they leave a column and enter the next one, by turns.
  std::vector<std::vector<Point>> routes;
  Size size;
};

// Nodes without predecessors stand in the first column, those without successors in the last one.
// Arcs out of one node share their ways. Throws std::invalid_argument if an arc's node isn't there
// or arcs form a circle.
Layout lay_out(const std::vector<Size>& nodes, const std::vector<Arc>& arcs,
               const LayoutOptions& options);

// The positions of a column in the given order that are nearest to `wanted` in the sense of least
// squares, if neighbours have to be `apart[i]` (between i and i + 1) apart at least.
std::vector<double> nearest_positions(const std::vector<double>& wanted,
                                      const std::vector<double>& apart);

}  // namespace pages
