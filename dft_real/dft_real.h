// The real DFT kernels: how every length is computed, and the manifest rows that come of it.
#pragma once

#include <vector>

#include "gen/kernel.h"
#include "networks/rader_table.h"
#include "networks/real_dft.h"

namespace dft_real {

// Trees are in the notation of networks/tree.h. An inverse kernel is the mirror image of the
// network that its tree describes.
struct Row {
  int length;
  const char* forward;
  const char* inverse;
  int sign_flips;  // bins of the forward kernel whose imaginary part comes out of 0.0 - x
};
extern const std::vector<Row> kRows;
// Leaves of trees in Rader's form, those of both directions.
const networks::RaderTable& rader();

const Row& row_of(int length);

// The bins of real samples, unscaled.
networks::Bins<gen::Expr> forward_core(const Row& row, const std::vector<gen::Expr>& samples);

// The samples of a spectrum, unscaled. It comes as the parts re 0, re 1, im 1, ..., of which those
// of the conjugate pairs, all but the first and at even length the last, count double.
std::vector<gen::Expr> inverse_core(const Row& row, const std::vector<gen::Expr>& doubled_parts);

// All lengths, layouts and types, both directions.
std::vector<gen::Kernel> kernels();

}  // namespace dft_real
