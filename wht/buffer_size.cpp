#include <array>

#include "frame/kernel.h"
#include "wht/plans.h"

namespace zulgen {
namespace {

template <class T>
constexpr auto work_bytes_of_all_orders() {
  std::array<int, wht::kLastOrder> bytes{};
  for (int order = 1; order <= wht::kLastOrder; ++order) {
    bytes[order - 1] = wht::work_bytes<T>(order);
  }
  return bytes;
}

template <class T>
zulgResult get_buffer_size(int order, int* size) {
  static constexpr auto kBytes = work_bytes_of_all_orders<T>();
  // As an unsigned number, everything out of range is too large.
  const unsigned index = static_cast<unsigned>(order) - 1;
  if (index >= wht::kLastOrder) return ZULG_ERR_SIZE;
  *size = kBytes[index];
  return ZULG_OK;
}

}  // namespace

ZULGEN_EXPORT zulgResult zulgWHTGetBufferSize_32f(int order, int* size) {
  return get_buffer_size<float>(order, size);
}

ZULGEN_EXPORT zulgResult zulgWHTGetBufferSize_64f(int order, int* size) {
  return get_buffer_size<double>(order, size);
}

}  // namespace zulgen
