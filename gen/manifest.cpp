#include "gen/manifest.h"

#include <algorithm>

#include "dft_complex/dft_complex.h"

namespace gen {

std::vector<Kernel> all_kernels() { return dft_complex::kernels(); }

std::vector<std::string> exported_functions() {
  std::vector<std::string> names = {"zulgenGetLibVersion"};
  for (const Kernel& kernel : all_kernels()) names.push_back(kernel.name);
  std::sort(names.begin(), names.end());
  return names;
}

}  // namespace gen
