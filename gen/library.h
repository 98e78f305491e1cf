// Writes the library's generated sources.
#pragma once

#include <map>
#include <optional>
#include <string>

#include "gen/schedule.h"

namespace gen {

// The number of source files that each family's kernels are spread over, so that they compile
// side by side. Every family of the manifest has to be named.
using Shards = std::map<std::string, int>;

// Into `directory`: <family>.<shard>.cpp for every shard; <family>.h for every family whose code,
// written by hand, calls generated bodies; and zulgens8.map, the linker's version script, which
// exports what the manifest lists and nothing else. `order` replaces the own order of every kernel
// and body. Throws std::runtime_error.
void write_library(const std::string& directory, const Shards& shards,
                   const std::optional<Order>& order);

}  // namespace gen
