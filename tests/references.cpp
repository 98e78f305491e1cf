#include "tests/references.h"

#include <stdexcept>

#include "networks/walsh_hadamard.h"
#include "tests/quad_dft.h"

namespace references {
namespace {

using gen::Quad;
using Source = std::vector<double>;

}  // namespace

Reference of(const gen::Kernel& kernel) {
  const int n = kernel.length();
  const bool forward = kernel.direction == gen::Direction::kForward;
  const bool is_complex = kernel.transform == gen::Transform::kComplexDft;
  const bool is_real = kernel.transform == gen::Transform::kRealDft;
  // By its fast algorithm: the definition would take too long, and has a test of its own.
  if (kernel.transform == gen::Transform::kWalshHadamard) {
    return [](const Source& x) {
      return networks::walsh_hadamard(std::vector<Quad>(x.begin(), x.end()));
    };
  }
  if (is_real && kernel.layout != gen::Layout::kCcs) {
    throw std::invalid_argument("no definition of " + kernel.name);
  }
  Block circle;
  for (int k = 0; k < n; ++k) circle.push_back(unit_root(is_complex && !forward ? -k : k, n));
  // What element j adds to element i. Elements of complex samples are their parts in turn.
  const auto coefficient = [&](int i, int j) -> Quad {
    const int parts_of_i = is_complex || (is_real && forward) ? 2 : 1;
    const int parts_of_j = is_complex || (is_real && !forward) ? 2 : 1;
    const auto& root = circle[i / parts_of_i * (j / parts_of_j) % n];
    const bool to_im = i % parts_of_i == 1, from_im = j % parts_of_j == 1;
    if (is_complex) return to_im == from_im ? root.re : to_im ? root.im : -root.im;
    if (!is_real) return root.re - root.im;
    const bool stands_alone = j / 2 == 0 || j / 2 * 2 == n;  // of an inverse transform's bins
    if (stands_alone && from_im) return 0;
    return (forward || stands_alone ? 1 : 2) * (to_im || from_im ? root.im : root.re);
  };
  std::vector<std::vector<Quad>> rows(kernel.destination_elements);
  for (int i = 0; i < kernel.destination_elements; ++i) {
    for (int j = 0; j < kernel.source_elements; ++j) rows[i].push_back(coefficient(i, j));
  }
  return [rows](const Source& x) {
    std::vector<Quad> y(rows.size());
    for (std::size_t i = 0; i < rows.size(); ++i) {
      for (std::size_t j = 0; j < x.size(); ++j) y[i] += rows[i][j] * x[j];
    }
    return y;
  };
}

}  // namespace references
