// The entries that take a length at run time and pass the call on to the kernel of that length.
#pragma once

#include <string>
#include <vector>

#include "gen/kernel.h"

namespace generate {

struct DispatchEntry {
  std::string name;
  std::string family;
  bool has_work_argument = false;
  int lowest = 0;                    // the number of the first kernel: its length, or its order
  std::vector<std::string> kernels;  // one for every number from there on
};

// One entry for all kernels that differ in their numbers alone. The kernels of an entry come in
// order of their numbers; throws std::runtime_error if one is missing.
std::vector<DispatchEntry> dispatch_entries(const std::vector<gen::Kernel>& kernels);

// The entry and its table as assembly, made from the target's pattern. Lines of it that begin with
// # are about the pattern. Words in it stand for
//
//   @ENTRY@            the entry
//   @TABLE@            its table
//   @LOWEST@, @LAST@   the lowest number, and how far the highest lies above it
//   @OFFSETS: lines @  the lines once for every kernel, with @KERNEL@ in them
//   @WORK: lines @     the lines if there is a work buffer, else nothing
std::string emit_dispatch(const DispatchEntry& entry, const std::string& pattern);

}  // namespace generate
