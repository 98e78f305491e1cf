// The Walsh-Hadamard kernels, as the generator sees them: the manifest rows, the straight-line
// kernels of the short orders, and the bodies of the long orders' passes.
#pragma once

#include <string>
#include <vector>

#include "gen/kernel.h"
#include "wht/plans.h"

namespace wht {

// The kernels of all orders. Those of the long orders are functions of wht/long_orders.cpp; their
// graphs are what the passes compute.
std::vector<gen::Kernel> kernels();

// The bodies of the passes as a header.
std::string body_header();

// What a pass does to one block of 2^row_order contiguous samples, or to one vector of columns.
// Elements of the source and of the destination are those of the block, or one packed vector a row.
gen::Graph row_graph(gen::Precision precision, int row_order);
gen::Graph column_graph(gen::Precision precision, int rows, bool is_scaled);

// What the kernel of an order computes, in all its passes.
gen::Graph kernel_graph(gen::Precision precision, int order);

}  // namespace wht
