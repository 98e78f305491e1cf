// The widest vectors of processors with SSE.
#pragma once

#include "frame/vector.h"

namespace zulgen {

using WideF = F4;
using WideD = D2;
// Whether vectors at any address are as good as aligned ones.
inline constexpr bool kAnyAddress = false;

}  // namespace zulgen
