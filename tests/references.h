// What the kernels compute, by definition, in quad precision with the compiler's own trigonometry.
#pragma once

#include <functional>
#include <vector>

#include "gen/kernel.h"

namespace references {

// The exact transform of an input, unscaled.
using Reference = std::function<std::vector<gen::Quad>(const std::vector<double>& source)>;

// The transform of a kernel of the manifest. Packed spectra are CCS alone: the other layouts are
// compared with that.
Reference of(const gen::Kernel& kernel);

}  // namespace references
