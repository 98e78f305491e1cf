// The chirp form of a DFT of prime length N: with h the inverse of 2 modulo N, n k = h n^2 + h k^2
// - h (n - k)^2, so that the DFT is a convolution with the chirp w[n] = exp(-2 pi i h n^2 / N),
// which DFTs of any length M >= 2 N - 1 compute:
//
//   a[n] = x[n] w[n],  A = DFT of a,  Z[k] = A[k] B[k],  X[k] = w[k] * inverse DFT of Z,
//
// with B the DFT of conj w[|n|], divided by M.
//
// L. I. Bluestein, "A linear filtering approach to the computation of the discrete Fourier
// transform", IEEE Trans. Audio Electroacoust. 18 (1970).
#pragma once

#include <vector>

#include "networks/complex_dft.h"
#include "networks/packs.h"

namespace networks {

std::vector<ComplexNumber> chirp(int n);
// B[k], k = 0..length - 1.
std::vector<ComplexNumber> chirp_spectrum(int n, int length);

// X[k], k = 0..N - 1, with root exp(-2 pi i exponent / N), exponent 1 or -1: the conjugate root has
// the conjugate chirp, the conjugate spectrum, and the conjugate root in both transforms. The
// tree's length is M. Additions of the zeros behind the input are left out, and so is what only
// other outputs need.
template <class Form>
std::vector<typename Form::Sample> chirp_dft(Form& form, const Tree& tree,
                                             const std::vector<typename Form::Sample>& x,
                                             int exponent) {
  using Sample = typename Form::Sample;
  const int n = static_cast<int>(x.size());
  const auto of_root = [exponent](std::vector<ComplexNumber> constants) {
    if (exponent == -1) {
      for (ComplexNumber& constant : constants) constant.im = -constant.im;
    }
    return constants;
  };
  std::vector<ComplexNumber> w = of_root(chirp(n));
  form.begin_stage("w", "times the chirp");
  // Neighbours side by side; the last one has a zero beside it.
  std::vector<Sample> a = x;
  std::vector<std::vector<int>> groups;
  for (int i = 0; i < n; i += Form::kWidth) {
    std::vector<int>& group = groups.emplace_back();
    for (int k = i; k < i + Form::kWidth; ++k) group.push_back(k);
  }
  a.resize(tree.length, form.zero());
  w.resize(tree.length, w[0]);
  a = multiply_groups(form, a, w, groups);
  const std::vector<Sample> spectrum =
      ComplexDft<Form>(form, nullptr, Twiddles::kAllColumns).run(tree, a, exponent);
  form.begin_stage("r", "times the chirp's spectrum");
  const std::vector<Sample> z =
      multiply_all(form, spectrum, of_root(chirp_spectrum(n, tree.length)));
  std::vector<Sample> b =
      ComplexDft<Form>(form, nullptr, Twiddles::kNeededAsInverse).run(tree, z, -exponent, "i");
  b.resize(n);
  form.begin_stage("v", "times the chirp");
  return multiply_all(form, b, w);
}

}  // namespace networks
