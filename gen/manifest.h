// The manifest: every kernel of the library, and every function that it exports.
#pragma once

#include <string>
#include <vector>

#include "gen/kernel.h"

namespace gen {

std::vector<Kernel> all_kernels();

// The kernels, their dispatch entries and the functions written by hand, sorted.
std::vector<std::string> exported_functions();

}  // namespace gen
