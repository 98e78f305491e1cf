// Which imaginary parts a forward kernel computes with the wrong sign, to subtract them from zero
// at the end, is free to choose; how many, is part of what each kernel promises.
#pragma once

#include "gen/graph.h"

namespace dft_real {

// The number of outputs that are 0.0 - x.
int count_sign_flips(const gen::Graph& graph);

// Turns round the last subtraction of imaginary parts, those of low bins first, until `wanted`
// outputs are 0.0 - x. The elements of the destination are the parts of layouts.h. Throws
// std::logic_error if too few parts end in a subtraction.
gen::Graph turn_final_subtractions(const gen::Graph& graph, int wanted);

}  // namespace dft_real
