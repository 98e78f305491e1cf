#include "dft_complex/dft_complex.h"

namespace dft_complex {

using gen::Kernel;

Kernel describe(int length, const char* type, const char* tree, Direction direction,
                const char* order) {
  const std::string suffix = type;
  const bool forward = direction == Direction::kForward;
  Kernel kernel;
  kernel.name = std::string(forward ? "zulgDFTFwd_CToC_" : "zulgDFTInv_CToC_") +
                std::to_string(length) + "_" + suffix;
  kernel.family = "dft_complex_" + suffix;
  kernel.recipe = tree;
  kernel.length = length;
  kernel.precision = suffix == "32fc" ? gen::Precision::kSingle : gen::Precision::kDouble;
  kernel.scale_rule = forward ? gen::ScaleRule::kForward : gen::ScaleRule::kInverse;
  kernel.source_type = kernel.destination_type = "zulg" + suffix;
  kernel.source_elements = kernel.destination_elements = 2 * length;
  kernel.order = gen::parse_order(order);
  return kernel;
}

std::vector<Kernel> kernels() {
  std::vector<Kernel> result = kernels_32fc();
  for (Kernel& kernel : kernels_64fc()) result.push_back(std::move(kernel));
  return result;
}

}  // namespace dft_complex
