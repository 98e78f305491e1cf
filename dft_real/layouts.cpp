#include "dft_real/layouts.h"

namespace dft_real {

int size_of(Layout layout, int length) {
  return layout == Layout::kCcs ? length / 2 * 2 + 2 : length;
}

int place_of(Layout layout, int length, int part) {
  if (part == 0 || layout == Layout::kPack) return part;
  if (layout == Layout::kCcs) return part + 1;
  if (length % 2 == 1) return part;
  return part == length - 1 ? 1 : part + 1;
}

std::vector<int> zero_places(Layout layout, int length) {
  if (layout != Layout::kCcs) return {};
  if (length % 2 == 1) return {1};
  return {1, length + 1};
}

}  // namespace dft_real
