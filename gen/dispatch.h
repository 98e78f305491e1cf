// The entries that take a length at run time and pass the call on to the kernel of that length.
#pragma once

#include <string>
#include <vector>

#include "gen/kernel.h"

namespace gen {

struct DispatchEntry {
  std::string name;  // the name of its kernels without the number
  std::string family;
  std::string source_type, destination_type;
  bool has_work_argument = false;
  int lowest = 0;                    // the number of the first kernel: its length, or its order
  std::vector<std::string> kernels;  // one for every number from there on
};

// One entry for all kernels whose names differ in the number alone. The kernels of an entry come in
// order of their numbers; throws std::runtime_error if one is missing.
std::vector<DispatchEntry> dispatch_entries(const std::vector<Kernel>& kernels);

// The entry and its table as C++.
std::string emit_dispatch(const DispatchEntry& entry);

}  // namespace gen
