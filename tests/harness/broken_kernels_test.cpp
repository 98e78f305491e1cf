// Proof of the harness: a correct kernel passes every check, and each broken one is found by the
// check that is there for it.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>

#include "convention.h"  // the target's
#include "tests/harness/checks.h"
#include "tests/harness/digest.h"

namespace harness {
namespace {

// All of them are complex DFTs of length 2, after this one.
template <auto arithmetic>
zulgResult dft2(const void* source, void* destination, zulgScaleFlag flag, void*) {
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
constexpr KernelFunction good = dft2<correct>;

// In broken.S: good, and then a register that belongs to the caller; good, on a stack that has to
// be aligned.
extern "C" zulgResult clobbers_register(const void*, void*, zulgScaleFlag, void* work);
extern "C" zulgResult wants_aligned_stack(const void*, void*, zulgScaleFlag, void* work);
extern "C" zulgResult call_good(const void* x, void* y, zulgScaleFlag flag, void* work) {
  return good(x, y, flag, work);
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

struct Broken {
  const char* name;
  Findings (*check)(const Subject&);
  KernelFunction function;
};
const Broken kBroken[] = {
    {"wrong last bit", check_bits, dft2<[](auto x, auto y, float s) {
       correct(x, y, s);
       y[3] = std::nextafter(y[3], 2.0f);
     }>},
    {"ignores scale", check_bits,
     dft2<[](auto x, auto y, float s) { correct(x, y, s == 0.5f ? s : 1.0f); }>},
    {"loses minus zero", check_bits, dft2<[](auto x, auto y, float s) {
       correct(x, y, s);
       y[0] = y[0] + 0.0f;
     }>},
    {"scales as inverse", check_scale,
     [](const void* x, void* y, zulgScaleFlag flag, void* work) {
       return good(x, y, flag <= 2 ? 3 - flag : flag, work);
     }},
    {"writes too early", check_alignment, dft2<[](auto x, auto y, float s) {
       y[0] = s * (x[0] + x[2]);
       y[1] = s * (x[1] + x[3]);
       y[2] = s * (x[0] - x[2]);
       y[3] = s * (x[1] - x[3]);
     }>},
    {"rounds by alignment", check_alignment, dft2<[](auto x, auto y, float s) {
       correct(x, y, s);
       if (reinterpret_cast<std::uintptr_t>(y) % 16 != 0) y[2] = (x[0] - x[2]) / (1 / s);
     }>},
    {"reads behind", check_memory, dft2<[](auto x, auto y, float s) {
       correct(x, y, s);
       static_cast<void>(x[4]);
     }>},
    {"reads before", check_memory, dft2<[](auto x, auto y, float s) {
       correct(x, y, s);
       static_cast<void>(x[-1]);
     }>},
    {"uses memory behind", check_memory, dft2<[](auto x, auto y, float s) {
       const float behind = reinterpret_cast<std::uintptr_t>(x + 4) % 4096 == 0 ? 0 : x[4];
       correct(x, y, s);
       y[0] = y[0] + 0 * behind;
     }>},
    {"writes behind", check_memory, dft2<[](auto x, auto y, float s) {
       correct(x, y, s);
       if (reinterpret_cast<std::uintptr_t>(y + 4) % 4096 != 0) y[4] = 1;
     }>},
    {"writes before", check_memory, dft2<[](auto x, auto y, float s) {
       correct(x, y, s);
       if (reinterpret_cast<std::uintptr_t>(y) % 4096 != 0) y[-1] = 1;
     }>},
    {"writes its source", check_memory, dft2<[](auto x, auto y, float s) {
       correct(x, y, s);
       if (x != y) const_cast<volatile float*>(x)[0] = 0;
     }>},
    {"takes null as OK", check_arguments,
     [](const void* x, void* y, zulgScaleFlag flag, void* work) {
       return x == nullptr ? ZULG_OK : good(x, y, flag, work);
     }},
    {"flag before pointers", check_arguments,
     [](const void* x, void* y, zulgScaleFlag flag, void* work) {
       const bool is_known = flag == 1 || flag == 2 || flag == 4 || flag == 8;
       return is_known ? good(x, y, flag, work) : ZULG_ERR_FLAG;
     }},
    {"flags are bits", check_arguments,
     [](const void* x, void* y, zulgScaleFlag flag, void* work) {
       return good(x, y, flag & 8 ? 8 : flag, work);
     }},
    {"writes on error", check_arguments,
     [](const void* x, void* y, zulgScaleFlag flag, void* work) {
       const zulgResult result = good(x, y, flag, work);
       if (result == ZULG_ERR_FLAG) *static_cast<float*>(y) = 0;
       return result;
     }},
    {"clobbers a register", check_calling_convention, clobbers_register},
    {"flushes subnormals", check_calling_convention, dft2<[](auto x, auto y, float s) {
       correct(x, y, s);
       unsigned control = 0x9f80;
       asm volatile("ldmxcsr %0" : : "m"(control));
     }>},
    {"leaves an x87 value", check_calling_convention, dft2<[](auto x, auto y, float s) {
       correct(x, y, s);
       asm volatile("fld1");
     }>},
    {"computes on junk", check_flags, dft2<[](auto x, auto y, float s) {
       correct(x, y, s);
       volatile float junk = 0;
       junk = junk / junk;
     }>},
};

TEST(Harness, FindsEveryBrokenKernel) {
  for (const Broken& broken : kBroken) {
    EXPECT_FALSE(broken.check(subject_of(broken.function)).empty()) << broken.name;
  }
  // Where the stack is aligned at every call, nobody can tell.
  EXPECT_EQ(check_calling_convention(subject_of(wants_aligned_stack)).empty(),
            std::size(kStackOffsets) == 1);
}

}  // namespace
}  // namespace harness
