// Named rewrites of a graph. None changes the value of any float operation, but for one that says
// so.
#pragma once

#include <functional>
#include <vector>

#include "gen/graph.h"

namespace gen {

// How many operands and outputs read each node; a node that reads another twice counts twice.
std::vector<int> use_counts(const Graph& graph);

// c * (k1 * x +- k2 * y) becomes (c k1) * x +- (c k2) * y where nobody else reads the sum or the
// two products. The one rewrite that does change roundings: networks ask for it by name, and their
// kernels' roundings are those behind it.
Graph fold_products(const Graph& graph);

// fold_products(), and c * (k * x) as (c k) * x where nobody else reads k * x, until nothing is
// left to fold.
Graph fold_all_products(const Graph& graph);

// The same graph with its live nodes numbered as the outputs ask for them. What comes of a graph
// later, the order of its statements first of all, then doesn't hang on who compiled the generator.
Graph number_from_outputs(const Graph& graph);

// A scalar graph with the elements of source and destination renumbered.
Graph renumber_elements(const Graph& graph, const std::function<int(int)>& source,
                        const std::function<int(int)>& destination);

// Moves sign flips of single lanes into the constants of the multiplication behind or before them:
// c * flip(x) and flip(c * x) become (flip c) * x.
Graph absorb_sign_flips(const Graph& graph);

// Moves what turns the signs of some lanes into the constants of a multiplication, or the factor of a
// scaling, that nothing else reads: a sum that adds some lanes and subtracts others by no
// instruction of its own, and a sign flip.
Graph absorb_lane_signs(const Graph& graph);

}  // namespace gen
