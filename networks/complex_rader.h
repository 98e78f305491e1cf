// Rader's form on complex samples: with g a primitive root modulo the prime p and n = p - 1,
//
//   A = DFT of length n of x[g^m],   Z[k] = S[k] A[k],   Z[0] += x[0],
//   X[g^-l] = sum of Z[k] exp(+2 pi i k l / n),   X[0] = x[0] + A[0].
//
// S is rader_table.h's, with the division by n in it.
#pragma once

#include <vector>

#include "networks/complex_dft.h"
#include "networks/packs.h"
#include "networks/rader_table.h"

namespace networks {

// X[k], k = 0..p - 1, with root exp(-2 pi i exponent / p), exponent 1 or -1. The product with S and
// all twiddle factors are carried out in full, those by 1 and by quarter turns included.
template <class Form>
std::vector<typename Form::Sample> complex_rader(Form& form, const Tree& forward,
                                                 const Tree& inverse,
                                                 typename ComplexDft<Form>::Leaf leaf,
                                                 const std::vector<typename Form::Sample>& x,
                                                 int exponent) {
  using Sample = typename Form::Sample;
  const int p = static_cast<int>(x.size()), n = p - 1;
  const std::vector<int> powers = root_powers(p);
  std::vector<Sample> permuted;
  for (int m = 0; m < n; ++m) permuted.push_back(x[powers[m]]);
  const std::vector<Sample> a =
      ComplexDft<Form>(form, leaf, Twiddles::kAllRows).run(forward, permuted, 1);

  form.begin_stage("r", "times the spectrum of the permuted roots");
  std::vector<Sample> y(p);
  y[0] = add_to_first(form, a, x[0])[0];
  const std::vector<Sample> z =
      add_to_first(form, multiply_all(form, a, rader_spectrum(p, 0)), x[0]);
  const std::vector<Sample> b =
      ComplexDft<Form>(form, leaf, Twiddles::kAllColumns).run(inverse, z, -1, "i");
  // With h[t] = exp(-2 pi i g^-t / p), whose spectrum S is, the conjugate root has conj h[t]. As
  // g^(n/2) is -1, that is h[t + n/2]: the same sequence n/2 places on, and so are the outputs,
  // which g^-(l + n/2) = -g^-l renames.
  for (int l = 0; l < n; ++l) {
    const int k = powers[(n - l) % n];
    y[exponent == 1 ? k : p - k] = b[l];
  }
  return y;
}

}  // namespace networks
