// Which samples share a vector in a single-precision complex kernel: the arithmetic is the same
// either way, the number of lane moves is not. A row says which arrangement its kernels have; this
// is how it was found.
#pragma once

#include "dft_complex/dft_complex.h"

namespace dft_complex {

// The plan whose kernel has the fewest operations on the busiest ports. It takes some seconds.
networks::TwoSamples::Plan cheapest_arrangement(const Row32fc& row, Direction direction);

}  // namespace dft_complex
