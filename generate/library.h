// Writes the library's generated sources.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "generate/target.h"

namespace generate {

// The number of source files that each family's kernels are spread over, so that they compile
// side by side. Every family of the manifest has to be named.
using Shards = std::map<std::string, int>;

// Into `directory`: <family>.<shard>.cpp for every shard, <family>.dispatch.s with the entries
// that pick one of the family's kernels by its length, the headers of bodies; zulgens8.map, the
// linker's version script, which exports what the manifest lists and nothing else; and library.txt,
// which contents.h reads. Throws std::runtime_error.
void write_library(const Target& target, const std::string& directory, const Shards& shards);

// One source file that holds the kernel in all these forms, as functions NAME_0, NAME_1, ...
std::string source_of_variants(const Target& target, gen::Kernel kernel,
                               const std::vector<std::string>& forms);

}  // namespace generate
