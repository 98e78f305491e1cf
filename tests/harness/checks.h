// What every kernel of every family has to stand: written once, told by the manifest.
#pragma once

#include <functional>

#include "tests/harness/subject.h"

namespace harness {

// The exact transform of an input, unscaled, in quad precision.
using Reference = std::function<std::vector<gen::Quad>(const std::vector<double>& source)>;

// Relative L2 error over many uniform inputs, in units of the precision's rounding error u (2^-24
// or 2^-53).
double relative_error(const Subject& subject, const Reference& reference);

// The destination after a call with aligned arrays.
std::vector<double> run(const Subject& subject, const std::vector<double>& source,
                        zulgScaleFlag flag);

// Equal bit for bit to its own data flow, interpreted, under every flag and on every kind of data.
Findings check_bits(const Subject& subject);

// The same bits whatever the alignment of either array, and with one array for both.
Findings check_alignment(const Subject& subject);

// Reads nothing but its source, writes nothing but its destination.
Findings check_memory(const Subject& subject);

// Null pointers and bad flags: the stated code, in the stated order, and nothing written.
Findings check_arguments(const Subject& subject);

// Works on a stack aligned on 4 bytes, and leaves registers and control words as they were.
Findings check_calling_convention(const Subject& subject);

}  // namespace harness
