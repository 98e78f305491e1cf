// The manifest rows of the complex DFT kernels.
#pragma once

#include <vector>

#include "gen/kernel.h"

namespace dft_complex {

// How one length of one sample type is computed.
struct Row {
  int length;
  const char* tree;   // the decomposition, in the notation of networks/tree.h
  const char* order;  // the order that measured fastest, in the notation of gen/schedule.h
};

extern const std::vector<Row> kRows32fc;

// Forward and inverse kernels of all rows.
std::vector<gen::Kernel> kernels();

}  // namespace dft_complex
