// The widest vectors.
#pragma once

#include "frame/vector256.h"

namespace zulgen {

using WideF = F8;
using WideD = D4;
// Whether vectors at any address are as good as aligned ones.
inline constexpr bool kAnyAddress = true;

}  // namespace zulgen
