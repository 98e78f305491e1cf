// Packing: from a graph of vectors to one of vectors twice as wide, which computes the same bits
// lane by lane. Which nodes go side by side is told by a pairing; everything else follows from it.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "gen/graph.h"
#include "gen/moves.h"

namespace gen {

// Two nodes whose lanes become the low and the high half of one. They are of one kind, and neither
// depends on the other. A node 0 - x, which makes an output, may go beside an output that is no
// such difference: the id of that one is raised by kIdentity, and names what it is then, itself and
// unchanged.
inline constexpr NodeId kIdentity = 10000;
struct Pair {
  NodeId low = kNoNode, high = kNoNode;
  friend auto operator<=>(const Pair&, const Pair&) = default;
};
using Pairing = std::vector<Pair>;

std::string to_string(Pairing pairing);
// Throws std::invalid_argument.
Pairing parse_pairing(std::string_view text);

// What packing asks of a node.
struct PackNode {
  // Nodes pair if their kinds are equal; empty if the node pairs with none.
  std::vector<int> kind;
  // What it reads: operands of a pair are those of its nodes, one by one side by side.
  std::vector<NodeId> slots;
  bool commutes = false;
  bool is_load = false;  // elements of the source, or a constant: side by side without being paired
  // The lanes picked by a move, with the positions of their nodes in `slots` for nodes.
  std::vector<Lane> picks;
};
PackNode pack_node(const Graph& graph, NodeId id);

// For a graph that is numbered from its outputs and whose moves are single ones. A pairing that
// doesn't fit is a std::invalid_argument.
Graph pack(const Graph& graph, const Pairing& pairing, const MoveSet& moves);

// Throws std::logic_error unless both graphs compute every output by the very same operations, up
// to what is equal in every bit: operands of a sum and a product in any order, a - b as a + (-b),
// signs of products and of their conversions carried out earlier or later, -0 + x as x.
void prove_equal(const Graph& graph, const Graph& packed);

}  // namespace gen
