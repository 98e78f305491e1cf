// The Walsh-Hadamard kernels, as the generator sees them: the manifest rows, the straight-line
// kernels of the short orders, and the bodies of the long orders' passes.
#pragma once

#include <vector>

#include "gen/body.h"
#include "gen/kernel.h"
#include "wht/plans.h"

namespace wht {

// The kernels of all orders. Those of the long orders are functions of wht/long_orders.cpp; their
// graphs are what the passes compute.
std::vector<gen::Kernel> kernels();

// The bodies of the passes, as wht/passes.h declares them, in vectors of so many bits: 128 or 256.
std::vector<gen::Body> bodies(int vector_bits);

// Whether an order is too short for vectors.
bool is_scalar(gen::Precision precision, int order);

// Samples in a vector; the low log2(lanes) bits of an index tell the lane.
int lanes_of(gen::Precision precision, int vector_bits);

// What a pass does to one block of 2^row_order contiguous samples, and to one vector of columns,
// vector r of which stands in row r. Results are whole vectors; a column's aren't scaled.
gen::Graph row_graph(gen::Precision precision, int row_order, int vector_bits);
gen::Graph column_graph(gen::Precision precision, int rows, int vector_bits);

// What the kernel of an order computes, in all its passes.
gen::Graph kernel_graph(gen::Precision precision, int order, int vector_bits);

}  // namespace wht
