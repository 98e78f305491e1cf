// What every compiled kernel has to stand.
#pragma once

#include "tests/harness/subject.h"

namespace harness {

// The destination after a call with aligned arrays.
std::vector<double> run(const Subject& subject, const std::vector<double>& source,
                        zulgScaleFlag flag);

// What it computes, as digest.h tells it.
std::string digest_of_results(const Subject& subject);
// Equal to the digest of what it should compute.
Findings check_bits(const Subject& subject, const std::string& digest);

// Scaled as the name and the flag say.
Findings check_scale(const Subject& subject);

// The same bits whatever the alignment of either array, and with one array for both.
Findings check_alignment(const Subject& subject);

// Reads nothing but its source, writes nothing but its destination.
Findings check_memory(const Subject& subject);

// Null pointers and bad flags: the stated code, in the stated order, and nothing written.
Findings check_arguments(const Subject& subject);

// Works on a stack aligned on 4 bytes, and leaves registers and control words as they were.
Findings check_calling_convention(const Subject& subject);

// On ordinary samples the processor notes nothing but roundings. (Single-precision complex kernels
// hold constants so small that their products are subnormal.)
Findings check_flags(const Subject& subject);

}  // namespace harness
