// What the kernels compute, by definition, in quad precision with the compiler's own trigonometry.
#pragma once

#include "tests/harness/checks.h"

namespace references {

// The transform of a kernel of the manifest, told by its name. Packed spectra are CCS alone: the
// other layouts are compared with that.
harness::Reference of(const gen::Kernel& kernel);

}  // namespace references
