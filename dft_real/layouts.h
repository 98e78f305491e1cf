// The three packed arrays that hold the spectrum of N real samples. The parts of its bins are
// numbered re 0, re 1, im 1, re 2, im 2, ..., and at even N re N/2: part 0 to N - 1.
//
//               CCS                  Pack           Perm
//   re 0        0                    0              0
//   re k, im k  2k, 2k + 1           2k - 1, 2k     even N: 2k, 2k + 1   odd N: 2k - 1, 2k
//   re N/2      N                    N - 1          1
//   +0.0        1, and N + 1 if N    -              -
//               is even
#pragma once

#include <vector>

#include "gen/signature.h"

namespace dft_real {

using gen::Layout;
inline constexpr Layout kLayouts[] = {Layout::kCcs, Layout::kPack, Layout::kPerm};

// The number of elements.
int size_of(Layout layout, int length);
// Where a part is.
int place_of(Layout layout, int length, int part);
// The elements that are +0.0.
std::vector<int> zero_places(Layout layout, int length);

}  // namespace dft_real
