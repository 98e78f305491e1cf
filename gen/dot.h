// A kernel's data flow as a picture, in the language of Graphviz.
#pragma once

#include <string>

#include "gen/kernel.h"

namespace gen {

// One box a value, from the source's samples on the left to the destination's on the right, one
// frame a stage.
std::string dot_graph(const Kernel& kernel);

}  // namespace gen
