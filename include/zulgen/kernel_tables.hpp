// The C functions by sample type, layout and length, for the C++ layer alone: include zulgen.hpp.
#ifndef ZULGEN_KERNEL_TABLES_HPP
#define ZULGEN_KERNEL_TABLES_HPP

#include <cstddef>
#include <span>

#include "zulgen.h"

namespace zulgen::detail {

inline constexpr std::size_t kLengths = 63, kLayouts = 3;

template <class Sample>
using Kernel = zulgResult (*)(const Sample*, Sample*, zulgScaleFlag);
template <class Sample>
using Entry = zulgResult (*)(const Sample*, Sample*, int, zulgScaleFlag);

// The kernels of 2 to 64 points, and the function that takes the length as an argument.
template <class Sample>
struct Family {
  Kernel<Sample> kernels[kLengths];
  Entry<Sample> by_length;
};

#define ZULGEN_FAMILY(name, type)                                                              \
  {                                                                                            \
    {name##_2_##type,  name##_3_##type,  name##_4_##type,  name##_5_##type,  name##_6_##type,  \
     name##_7_##type,  name##_8_##type,  name##_9_##type,  name##_10_##type, name##_11_##type, \
     name##_12_##type, name##_13_##type, name##_14_##type, name##_15_##type, name##_16_##type, \
     name##_17_##type, name##_18_##type, name##_19_##type, name##_20_##type, name##_21_##type, \
     name##_22_##type, name##_23_##type, name##_24_##type, name##_25_##type, name##_26_##type, \
     name##_27_##type, name##_28_##type, name##_29_##type, name##_30_##type, name##_31_##type, \
     name##_32_##type, name##_33_##type, name##_34_##type, name##_35_##type, name##_36_##type, \
     name##_37_##type, name##_38_##type, name##_39_##type, name##_40_##type, name##_41_##type, \
     name##_42_##type, name##_43_##type, name##_44_##type, name##_45_##type, name##_46_##type, \
     name##_47_##type, name##_48_##type, name##_49_##type, name##_50_##type, name##_51_##type, \
     name##_52_##type, name##_53_##type, name##_54_##type, name##_55_##type, name##_56_##type, \
     name##_57_##type, name##_58_##type, name##_59_##type, name##_60_##type, name##_61_##type, \
     name##_62_##type, name##_63_##type, name##_64_##type},                                    \
        name##_##type                                                                          \
  }

// The functions of one precision; layouts are in the order of their enumeration.
template <class Real>
struct Functions;

#define ZULGEN_FUNCTIONS(real, type)                                                           \
  template <>                                                                                  \
  struct Functions<real> {                                                                     \
    static constexpr Family<zulg##type##c> kForward = ZULGEN_FAMILY(zulgDFTFwd_CToC, type##c); \
    static constexpr Family<zulg##type##c> kInverse = ZULGEN_FAMILY(zulgDFTInv_CToC, type##c); \
    static constexpr Family<zulg##type> kHartley = ZULGEN_FAMILY(zulgHartley, type);           \
    static constexpr Family<zulg##type> kRealForward[kLayouts] = {                             \
        ZULGEN_FAMILY(zulgDFTFwd_RToCCS, type), ZULGEN_FAMILY(zulgDFTFwd_RToPack, type),       \
        ZULGEN_FAMILY(zulgDFTFwd_RToPerm, type)};                                              \
    static constexpr Family<zulg##type> kRealInverse[kLayouts] = {                             \
        ZULGEN_FAMILY(zulgDFTInv_CCSToR, type), ZULGEN_FAMILY(zulgDFTInv_PackToR, type),       \
        ZULGEN_FAMILY(zulgDFTInv_PermToR, type)};                                              \
    static constexpr auto kWalshHadamard = zulgWHT_##type;                                     \
    static constexpr auto kWorkSize = zulgWHTGetBufferSize_##type;                             \
  };
ZULGEN_FUNCTIONS(float, 32f)
ZULGEN_FUNCTIONS(double, 64f)
#undef ZULGEN_FUNCTIONS
#undef ZULGEN_FAMILY

// The compiler's look into a table, which leaves nothing of it in the program: the kernel, or for
// std::dynamic_extent the function by length.
template <std::size_t kLength, class Sample>
consteval auto find(const Family<Sample>& family) {
  if constexpr (kLength == std::dynamic_extent) {
    return family.by_length;
  } else {
    return family.kernels[kLength - 2];
  }
}

}  // namespace zulgen::detail

#endif
