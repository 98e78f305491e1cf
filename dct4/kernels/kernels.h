// The generated part of the DCT-IV: which kernels there are, and how each is factored.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "gen/body.h"

namespace dct4 {

// Kernels come in four kinds, which a plan puts together.
enum class Kind {
  kFirstStage,   // T(size)
  kSkewSum,      // a skew transform of `size` values, rotated by a table
  kSecondStage,  // `size` values rotated by a table, and mapped to 2 * size results
  kBaseCase,     // the whole transform of length `size`
};

struct Row {
  Kind kind;
  int size;
  std::vector<int> radices;  // of the splits; none in a skew transform, whose splits are fixed
};
extern const std::vector<Row> kRows;

// The data flow, with all lanes of a vector taking part in the same operations.
gen::Graph graph(const Row& row, gen::Precision precision);

// All kernels in both precisions, as dct4/bodies.h declares them. In vectors of 256 bits they are
// those of 128 bits, two side by side; for what is left over, 128 bits are there too.
std::vector<gen::Body> bodies(int vector_bits);

// The exported functions.
std::vector<std::string> entries();

}  // namespace dct4
