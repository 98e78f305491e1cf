// The search for what goes side by side in a kernel's wide vectors.
#pragma once

#include <string>

#include "gen/kernel.h"

namespace generate {

// The kernel's lines for a target's pairings.txt. Takes seconds; the longer, the more `moves`.
std::string find_pairings(const gen::Kernel& kernel, int moves, const gen::MoveSet& widest);

}  // namespace generate
