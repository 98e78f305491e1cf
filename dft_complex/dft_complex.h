// The manifest rows of the complex DFT kernels.
#pragma once

#include <vector>

#include "gen/kernel.h"
#include "networks/two_samples.h"

namespace dft_complex {

// How one length of one sample type is computed.
struct Row {
  int length;
  const char* tree;  // the decomposition, in the notation of networks/tree.h
  // What measured fastest: the arrangement of the first stage, and the orders of the statements, in
  // the notation of gen/schedule.h.
  networks::Leaves leaves;
  const char* forward_order;
  const char* inverse_order;
};

extern const std::vector<Row> kRows32fc;

// Forward and inverse kernels of all rows.
std::vector<gen::Kernel> kernels();

}  // namespace dft_complex
