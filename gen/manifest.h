// The manifest: every kernel of the library, and every function that it exports.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "gen/kernel.h"

namespace gen {

std::vector<Kernel> all_kernels();

// Generated bodies that code written by hand includes, by the name of their header.
std::map<std::string, std::string> body_headers();

// The kernels and the functions written by hand, sorted.
std::vector<std::string> exported_functions();

}  // namespace gen
