// Proof of the harness: a correct kernel passes every check, and each broken one is found by the
// check that is there for it.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>

#include "convention.h"  // the target's
#include "tests/harness/checks.h"
#include "tests/harness/digest.h"

namespace harness {
namespace {

// All of them are complex DFTs of length 2, after this one.
template <class Arithmetic>
zulgResult dft2(const void* source, void* destination, zulgScaleFlag flag, Arithmetic arithmetic) {
  if (source == nullptr || destination == nullptr) return ZULG_ERR_NULL_PTR;
  if (flag != 1 && flag != 2 && flag != 4 && flag != 8) return ZULG_ERR_FLAG;
  arithmetic(static_cast<const volatile float*>(source), static_cast<volatile float*>(destination),
             flag == 1   ? 0.5f
             : flag == 4 ? 0.70710677f
                         : 1.0f);
  return ZULG_OK;
}

void correct(const volatile float* x, volatile float* y, float s) {
  const float a = x[0], b = x[1], c = x[2], d = x[3];
  y[0] = s * (a + c);
  y[1] = s * (b + d);
  y[2] = s * (a - c);
  y[3] = s * (b - d);
}

// The macro makes a plain function of the arithmetic that stands behind it.
#define KERNEL(name, ...)                                                             \
  zulgResult name(const void* source, void* destination, zulgScaleFlag flag, void*) { \
    return dft2(source, destination, flag,                                            \
                [](const volatile float* x, volatile float* y, float s) __VA_ARGS__); \
  }

KERNEL(good, { correct(x, y, s); })
KERNEL(wrong_last_bit, {
  correct(x, y, s);
  y[3] = std::nextafter(y[3], 2.0f);
})
KERNEL(ignores_scale, { correct(x, y, s == 0.5f ? s : 1.0f); })
KERNEL(loses_minus_zero, {
  correct(x, y, s);
  y[0] = y[0] + 0.0f;
})
KERNEL(writes_too_early, {
  y[0] = s * (x[0] + x[2]);
  y[1] = s * (x[1] + x[3]);
  y[2] = s * (x[0] - x[2]);
  y[3] = s * (x[1] - x[3]);
})
KERNEL(rounds_by_alignment, {
  correct(x, y, s);
  if (reinterpret_cast<std::uintptr_t>(y) % 16 != 0) y[2] = (x[0] - x[2]) / (1 / s);
})
KERNEL(reads_behind, {
  correct(x, y, s);
  static_cast<void>(x[4]);
})
KERNEL(reads_before, {
  correct(x, y, s);
  static_cast<void>(x[-1]);
})
KERNEL(uses_memory_behind, {
  const float behind = reinterpret_cast<std::uintptr_t>(x + 4) % 4096 == 0 ? 0 : x[4];
  correct(x, y, s);
  y[0] = y[0] + 0 * behind;
})
KERNEL(writes_behind, {
  correct(x, y, s);
  if (reinterpret_cast<std::uintptr_t>(y + 4) % 4096 != 0) y[4] = 1;
})
KERNEL(writes_before, {
  correct(x, y, s);
  if (reinterpret_cast<std::uintptr_t>(y) % 4096 != 0) y[-1] = 1;
})
KERNEL(writes_source, {
  correct(x, y, s);
  if (x != y) const_cast<volatile float*>(x)[0] = 0;
})
KERNEL(flushes_subnormals, {
  correct(x, y, s);
  unsigned control = 0x9f80;
  asm volatile("ldmxcsr %0" : : "m"(control));
})
KERNEL(leaves_x87_value, {
  correct(x, y, s);
  asm volatile("fld1");
})
zulgResult scales_as_inverse(const void* source, void* destination, zulgScaleFlag flag,
                             void* work) {
  return good(source, destination, flag <= 2 ? 3 - flag : flag, work);
}
zulgResult takes_null_as_ok(const void* source, void* destination, zulgScaleFlag flag, void* work) {
  return source == nullptr ? ZULG_OK : good(source, destination, flag, work);
}
zulgResult flag_before_pointers(const void* source, void* destination, zulgScaleFlag flag,
                                void* work) {
  if (flag != 1 && flag != 2 && flag != 4 && flag != 8) return ZULG_ERR_FLAG;
  return good(source, destination, flag, work);
}
zulgResult flags_are_bits(const void* source, void* destination, zulgScaleFlag flag, void* work) {
  return good(source, destination, flag & 8 ? 8 : flag, work);
}
zulgResult writes_on_error(const void* source, void* destination, zulgScaleFlag flag, void* work) {
  const zulgResult result = good(source, destination, flag, work);
  if (result == ZULG_ERR_FLAG) *static_cast<float*>(destination) = 0;
  return result;
}

// In broken.S: good, and then a register that belongs to the caller; good, on a stack that has to
// be aligned.
extern "C" zulgResult clobbers_register(const void* source, void* destination, zulgScaleFlag flag,
                                        void* work);
extern "C" zulgResult wants_aligned_stack(const void* source, void* destination, zulgScaleFlag flag,
                                          void* work);
extern "C" zulgResult call_good(const void* source, void* destination, zulgScaleFlag flag,
                                void* work) {
  return good(source, destination, flag, work);
}

Subject subject_of(KernelFunction function) {
  return {{{"zulgDFTFwd_CToC_2_32fc", sizeof(float), 4, 4}}, function};
}

// The bits that all of them should have.
Findings check_bits(const Subject& subject) {
  static const std::string digest = digest_of_results(subject_of(good));
  return check_bits(subject, digest);
}

TEST(Harness, PassesACorrectKernel) {
  const Subject subject = subject_of(good);
  EXPECT_EQ(digest_of_results(subject), read_digests(DIGESTS).at(subject.name));
  for (const auto check :
       {check_scale, check_alignment, check_memory, check_arguments, check_calling_convention}) {
    EXPECT_EQ(check(subject), Findings{});
  }
}

TEST(Harness, FindsEveryBrokenKernel) {
  struct Case {
    const char* name;
    KernelFunction function;
    Findings (*check)(const Subject&);
  };
  const Case cases[] = {
      {"wrong_last_bit", wrong_last_bit, check_bits},
      {"ignores_scale", ignores_scale, check_bits},
      {"loses_minus_zero", loses_minus_zero, check_bits},
      {"scales_as_inverse", scales_as_inverse, check_scale},
      {"writes_too_early", writes_too_early, check_alignment},
      {"rounds_by_alignment", rounds_by_alignment, check_alignment},
      {"reads_behind", reads_behind, check_memory},
      {"reads_before", reads_before, check_memory},
      {"uses_memory_behind", uses_memory_behind, check_memory},
      {"writes_behind", writes_behind, check_memory},
      {"writes_before", writes_before, check_memory},
      {"writes_source", writes_source, check_memory},
      {"takes_null_as_ok", takes_null_as_ok, check_arguments},
      {"flag_before_pointers", flag_before_pointers, check_arguments},
      {"flags_are_bits", flags_are_bits, check_arguments},
      {"writes_on_error", writes_on_error, check_arguments},
      {"clobbers_register", clobbers_register, check_calling_convention},
      {"flushes_subnormals", flushes_subnormals, check_calling_convention},
      {"leaves_x87_value", leaves_x87_value, check_calling_convention},
  };
  for (const Case& broken : cases) {
    EXPECT_FALSE(broken.check(subject_of(broken.function)).empty()) << broken.name;
  }
  // Where the stack is aligned at every call, nobody can tell.
  EXPECT_EQ(check_calling_convention(subject_of(wants_aligned_stack)).empty(),
            std::size(kStackOffsets) == 1);
}

}  // namespace
}  // namespace harness
