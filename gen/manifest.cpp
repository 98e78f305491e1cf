#include "gen/manifest.h"

#include <algorithm>

#include "dft_complex/dft_complex.h"
#include "dft_real/dft_real.h"
#include "gen/dispatch.h"
#include "hartley/hartley.h"

namespace gen {

std::vector<Kernel> all_kernels() {
  std::vector<Kernel> result;
  for (const auto& family : {dft_complex::kernels(), dft_real::kernels(), hartley::kernels()}) {
    result.insert(result.end(), family.begin(), family.end());
  }
  return result;
}

std::vector<std::string> exported_functions() {
  std::vector<std::string> names = {"zulgenGetLibVersion"};
  const std::vector<Kernel> kernels = all_kernels();
  for (const Kernel& kernel : kernels) names.push_back(kernel.name);
  for (const DispatchEntry& entry : dispatch_entries(kernels)) names.push_back(entry.name);
  std::sort(names.begin(), names.end());
  return names;
}

}  // namespace gen
