// The search for what goes side by side in a kernel's wide vectors.
#pragma once

#include <string>

#include "gen/kernel.h"

namespace generate {

// The kernel's lines for the pairings.txt of a target with these moves. Takes seconds to minutes.
std::string find_pairings(const gen::Kernel& kernel, const gen::MoveSet& moves);

}  // namespace generate
