// The complex DFT kernels: how every length is computed, and the manifest rows that come of it.
#pragma once

#include <vector>

#include "gen/kernel.h"
#include "networks/rader_table.h"
#include "networks/two_samples.h"

namespace dft_complex {

// Trees are in the notation of networks/tree.h.
struct Row32fc {
  int length;
  const char* tree;
  networks::Leaves leaves;  // as measured fastest
  // The answers to TwoSamples::choose(), 0 or 1 each, up to the last 1: see arrangement.h.
  const char* forward_plan = "";
  const char* inverse_plan = "";
};
extern const std::vector<Row32fc> kRows32fc;
inline constexpr int kLastScalarLength = 5;  // longer ones have two samples a vector
// Leaves of trees in Rader's form.
const networks::RaderTable& rader_32fc();

struct Row64fc {
  int length;
  const char* tree;
};
extern const std::vector<Row64fc> kRows64fc;
const networks::RaderTable& rader_64fc();

// Forward and inverse kernels of all lengths.
std::vector<gen::Kernel> kernels();

using gen::Direction;
inline constexpr Direction kDirections[] = {Direction::kForward, Direction::kInverse};

// The exponent of exp(-2 pi i / N) in the transform.
inline int exponent(Direction direction) { return direction == Direction::kForward ? 1 : -1; }

// A kernel without its bodies and its graph.
gen::Kernel describe(int length, gen::Precision precision, const char* tree, Direction direction);

// The data flow of a row that has two samples a vector, arranged by the plan, which is completed.
gen::Graph arranged_graph(const Row32fc& row, Direction direction,
                          networks::TwoSamples::Plan& plan);

std::vector<gen::Kernel> kernels_32fc();
std::vector<gen::Kernel> kernels_64fc();

}  // namespace dft_complex
