#include "dft_complex/dft_complex.h"

namespace dft_complex {

using gen::Kernel;

Kernel describe(int length, gen::Precision precision, const char* tree, Direction direction) {
  Kernel kernel = gen::kernel_of(
      {gen::Transform::kComplexDft, direction, gen::Layout::kNone, precision, length});
  kernel.recipe = tree;
  return kernel;
}

std::vector<Kernel> kernels() {
  std::vector<Kernel> result = kernels_32fc();
  for (Kernel& kernel : kernels_64fc()) result.push_back(std::move(kernel));
  return result;
}

}  // namespace dft_complex
