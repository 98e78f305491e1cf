#include "gen/manifest.h"

#include <algorithm>

#include "dft_complex/dft_complex.h"
#include "wht/wht.h"

namespace gen {

std::vector<Kernel> all_kernels() {
  std::vector<Kernel> result = dft_complex::kernels();
  for (Kernel& kernel : wht::kernels()) result.push_back(std::move(kernel));
  return result;
}

std::map<std::string, std::string> body_headers() { return {{"wht_bodies.h", wht::body_header()}}; }

std::vector<std::string> exported_functions() {
  std::vector<std::string> names = {"zulgenGetLibVersion", "zulgWHTGetBufferSize_32f",
                                    "zulgWHTGetBufferSize_64f"};
  for (const Kernel& kernel : all_kernels()) names.push_back(kernel.name);
  std::sort(names.begin(), names.end());
  return names;
}

}  // namespace gen
