#include "networks/chirp.h"

namespace networks {

std::vector<ComplexNumber> chirp(int n) {
  const long half = (n + 1) / 2;
  std::vector<ComplexNumber> w;
  for (long i = 0; i < n; ++i) w.push_back(Turn(-half * i * i, n).root());
  return w;
}

std::vector<ComplexNumber> chirp_spectrum(int n, int length) {
  const long half = (n + 1) / 2;
  std::vector<ComplexNumber> spectrum;
  for (long k = 0; k <= length / 2; ++k) {
    gen::Quad re = 0, im = 0;
    for (long i = -(n - 1); i < n; ++i) {
      // half i^2 / n of a turn, less i k / length of another.
      const ComplexNumber root = gen::unit_root(half * i * i % n * length - i * k % length * n,
                                                static_cast<long>(n) * length);
      re += root.re.value();
      im += root.im.value();
    }
    const std::string name = "B" + std::to_string(n) + "_" + std::to_string(k);
    spectrum.push_back({Number(re / length, name + "_re"), Number(im / length, name + "_im")});
  }
  for (long k = length / 2 + 1; k < length; ++k) spectrum.push_back(spectrum[length - k]);
  return spectrum;
}

}  // namespace networks
