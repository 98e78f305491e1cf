// Writes a scheduled graph as C++ statements, over the vector operations of frame/vector.h.
#pragma once

#include <string>
#include <vector>

#include "gen/graph.h"
#include "gen/moves.h"

namespace gen {

// How the statements reach memory. They call the pointer to the elements read x, the one to those
// written, which may equal it, y, and the factor, spread over the lanes, s.
struct BodyStyle {
  const MoveSet* moves = &sse_moves();
  // The kernel has aligned and unaligned access to memory, by a template parameter `Memory`; or its
  // vectors, of several types, are anywhere, and the factor is called s with the type behind it.
  bool memory_policy = true;
  // Accessors of fetched vectors, by number: `name.load(element)` brings one.
  std::vector<std::string> accessors;
  // Outputs are whole vectors that `y.store(element, vector)` takes, and reach nothing that is
  // read.
  bool stores_by_accessor = false;
};

// "float", "D2", "F8": the type of a node's values.
std::string type_name(Precision precision, int lane_count);

// The constants that the graph uses, one `constexpr` definition a line.
std::string emit_constants(const Graph& graph);

// The operations in the given order, with every load directly before its first use and every store
// directly behind its value, but never before a load of the same elements: source and destination
// may be one array.
std::string emit_body(const Graph& graph, const std::vector<NodeId>& order, const BodyStyle& style);

// Writes `text` unless the file holds it already, so that what has not changed isn't rebuilt.
void write_if_changed(const std::string& path, const std::string& text);

}  // namespace gen
