#include "gen/manifest.h"

#include <algorithm>

#include "dct4/kernels/kernels.h"
#include "dft_complex/dft_complex.h"

namespace gen {

std::vector<Kernel> all_kernels() { return dft_complex::kernels(); }

std::vector<Body> all_bodies() { return dct4::bodies(); }

std::vector<std::string> exported_functions() {
  std::vector<std::string> names = {"zulgenGetLibVersion"};
  for (const Kernel& kernel : all_kernels()) names.push_back(kernel.name);
  for (const std::string& name : dct4::entries()) names.push_back(name);
  std::sort(names.begin(), names.end());
  return names;
}

}  // namespace gen
