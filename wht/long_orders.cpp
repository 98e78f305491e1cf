// The kernels of orders 8 to 13.
#include "frame/kernel.h"
#include "wht_bodies.h"
#include "zulcore.h"

namespace zulgen {
namespace {

// 1 / sqrt(2^order), rounded as the quotient of 1 by the rounded root is: powers of two round
// nothing.
constexpr double one_over_sqrt(int order) {
  constexpr double kSqrt2 = 1.4142135623730951;
  return (order % 2 == 0 ? 1 : 1 / kSqrt2) / (1 << order / 2);
}

template <class V, int order, class Access, class T = SampleOf<V>>
ZULGEN_BODY zulgResult transform(const T* source, T* destination, zulgScaleFlag flag, void* work) {
  constexpr T kByN = T(1) / (1 << order), kBySqrtN = static_cast<T>(one_over_sqrt(order));
  T factor;
  const zulgResult result = check_arguments(source, destination, flag, kByN, kBySqrtN, factor);
  if (result != ZULG_OK) return result;
  void* const buffer = work != nullptr ? work : zulMalloc(wht::work_bytes<T>(order));
  run_passes<V, order, Access>(source, destination, factor, static_cast<T*>(buffer));
  if (work == nullptr) zulFree(buffer);
  return ZULG_OK;
}

}  // namespace

#define ZULGEN_WHT(order, type, vector)                                                            \
  template <class Access>                                                                          \
  ZULGEN_BODY zulgResult WHT_##order##_##type(const zulg##type* source, zulg##type* destination,   \
                                              zulgScaleFlag flag, void* work) {                    \
    return transform<vector, order, Access>(source, destination, flag, work);                      \
  }                                                                                                \
  ZULGEN_VECTOR_KERNEL(                                                                            \
      WHT_##order##_##type,                                                                        \
      (const zulg##type* source, zulg##type* destination, zulgScaleFlag flag, void* work),         \
      (source, destination, flag, work))

ZULGEN_WHT(8, 32f, WideF)
ZULGEN_WHT(9, 32f, WideF)
ZULGEN_WHT(10, 32f, WideF)
ZULGEN_WHT(11, 32f, WideF)
ZULGEN_WHT(12, 32f, WideF)
ZULGEN_WHT(13, 32f, WideF)
ZULGEN_WHT(8, 64f, WideD)
ZULGEN_WHT(9, 64f, WideD)
ZULGEN_WHT(10, 64f, WideD)
ZULGEN_WHT(11, 64f, WideD)
ZULGEN_WHT(12, 64f, WideD)
ZULGEN_WHT(13, 64f, WideD)

}  // namespace zulgen
