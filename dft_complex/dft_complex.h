// The complex DFT kernels: how every length is computed, and the manifest rows that come of it.
#pragma once

#include <vector>

#include "gen/kernel.h"
#include "networks/rader_table.h"
#include "networks/two_samples.h"

namespace dft_complex {

// Trees are in the notation of networks/tree.h; orders, in that of gen/schedule.h, are those that
// measured fastest.
struct Row32fc {
  int length;
  const char* tree;
  networks::Leaves leaves;  // as measured fastest, too
  const char* forward_order;
  const char* inverse_order;
};
extern const std::vector<Row32fc> kRows32fc;
// Leaves of trees in Rader's form.
extern const networks::RaderTable kRader32fc;

struct Row64fc {
  int length;
  const char* tree;
  const char* forward_order;
  const char* inverse_order;
};
extern const std::vector<Row64fc> kRows64fc;
extern const networks::RaderTable kRader64fc;

// Forward and inverse kernels of all lengths.
std::vector<gen::Kernel> kernels();

enum class Direction { kForward, kInverse };

// The exponent of exp(-2 pi i / N) in the transform.
inline int exponent(Direction direction) { return direction == Direction::kForward ? 1 : -1; }

// A kernel without its bodies and its graph. The type is "32fc" or "64fc".
gen::Kernel describe(int length, const char* type, const char* tree, Direction direction,
                     const char* order);

std::vector<gen::Kernel> kernels_32fc();
std::vector<gen::Kernel> kernels_64fc();

}  // namespace dft_complex
