// The Hartley kernels: real DFT cores with one layer of butterflies.
#pragma once

#include <vector>

#include "gen/kernel.h"

namespace hartley {

// H[k] = Re X[k] - Im X[k] and H[N - k] = Re X[k] + Im X[k] behind the forward core; or, as the
// Hartley matrix and the inverse map are one on these, sums and differences x[j] +- x[N - j] in
// place of the doubled parts before the inverse core. Which it is decides about the inner forms.
enum class Form { kOutputButterflies, kInputButterflies };

struct Row {
  int length;
  Form form;
};
extern const std::vector<Row> kRows;

std::vector<gen::Kernel> kernels();

}  // namespace hartley
