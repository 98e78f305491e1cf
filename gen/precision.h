// The precision rule of single-precision kernels whose constants are double.
#pragma once

#include "gen/graph.h"

namespace gen {

// Takes a graph that is single throughout and puts its products and their sums into double:
//   - a product is double, and so is its operand;
//   - a sum is double if it reads a double value that nobody else reads, otherwise it is single;
//   - a double sum that is read more than once, by a product or by a single sum, is rounded at its
//     end, and widened again where double is needed;
//   - a product is rounded only for the single sums that read it;
//   - a double value that is an output is scaled in double, then rounded.
Graph widen_products(const Graph& graph);

}  // namespace gen
