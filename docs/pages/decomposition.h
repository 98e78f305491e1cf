// How a kernel takes its length apart, in words for a reader.
#pragma once

#include <string>
#include <vector>

#include "docs/pages/catalogue.h"

namespace pages {

// A block of the algorithm and those that it is put together from, first to last.
struct Branch {
  int length = 0;
  std::string note;  // what it is, or what its parent uses it for
  std::vector<Branch> parts;
};

// Leaves in Rader's form are taken apart as well.
Branch decomposition(Transform transform, const gen::Kernel& kernel);

}  // namespace pages
