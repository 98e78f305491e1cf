// The manifest: every kernel of the library, and every function that it exports.
#pragma once

#include <string>
#include <vector>

#include "gen/body.h"
#include "gen/kernel.h"

namespace generate {

std::vector<gen::Kernel> all_kernels();

// The arithmetic of what is written by hand in terms of accessors, for vectors of so many bits.
std::vector<gen::Body> all_bodies(int vector_bits);

// The kernels, their dispatch entries and the functions written by hand, sorted.
std::vector<std::string> exported_functions();

}  // namespace generate
