// The manifest: every kernel of the library, and every function that it exports.
#pragma once

#include <string>
#include <vector>

#include "gen/body.h"
#include "gen/kernel.h"

namespace gen {

std::vector<Kernel> all_kernels();

// The arithmetic of what is written by hand.
std::vector<Body> all_bodies();

// The kernels and the functions written by hand, sorted.
std::vector<std::string> exported_functions();

}  // namespace gen
