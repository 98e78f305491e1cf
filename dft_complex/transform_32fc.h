// The networks of the single-precision complex kernels, in any form.
#pragma once

#include <vector>

#include "dft_complex/dft_complex.h"
#include "networks/chirp.h"
#include "networks/complex_dft.h"
#include "networks/complex_leaves.h"
#include "networks/complex_rader.h"

namespace dft_complex {

// The DFT that a row's tree describes, with root exp(-2 pi i exponent / N), exponent 1 or -1.
template <class Form>
std::vector<typename Form::Sample> transform_32fc(Form& form, const networks::Tree& tree,
                                                  const std::vector<typename Form::Sample>& x,
                                                  int exponent) {
  const auto leaf = [](const networks::Tree& leaf, const std::vector<typename Form::Packed>& x) {
    return complex_leaf(rader_32fc(), leaf, x);
  };
  switch (tree.kind) {
    case networks::Tree::Kind::kRader:
      return complex_rader(form, tree.first(), tree.second(), leaf, x, exponent);
    case networks::Tree::Kind::kChirp:
      return chirp_dft(form, tree.first(), x, exponent);
    default:
      return networks::ComplexDft<Form>(form, leaf).run(tree, x, exponent);
  }
}

}  // namespace dft_complex
