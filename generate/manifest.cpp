#include "generate/manifest.h"

#include <algorithm>

#include "dct4/kernels/kernels.h"
#include "dft_complex/dft_complex.h"
#include "dft_real/dft_real.h"
#include "generate/dispatch.h"
#include "hartley/hartley.h"
#include "wht/kernels/kernels.h"

namespace generate {

std::vector<gen::Kernel> all_kernels() {
  std::vector<gen::Kernel> result;
  for (const auto& family :
       {dft_complex::kernels(), dft_real::kernels(), hartley::kernels(), wht::kernels()}) {
    result.insert(result.end(), family.begin(), family.end());
  }
  return result;
}

std::vector<gen::Body> all_bodies(int vector_bits) {
  std::vector<gen::Body> result = dct4::bodies(vector_bits);
  for (const gen::Body& body : wht::bodies(vector_bits)) result.push_back(body);
  return result;
}

std::vector<std::string> exported_functions() {
  std::vector<std::string> names = {"zulgenGetLibVersion", "zulgWHTGetBufferSize_32f",
                                    "zulgWHTGetBufferSize_64f"};
  const std::vector<gen::Kernel> kernels = all_kernels();
  for (const gen::Kernel& kernel : kernels) names.push_back(kernel.name);
  for (const DispatchEntry& entry : dispatch_entries(kernels)) names.push_back(entry.name);
  for (const std::string& name : dct4::entries()) names.push_back(name);
  std::sort(names.begin(), names.end());
  return names;
}

}  // namespace generate
