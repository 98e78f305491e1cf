// What the Walsh-Hadamard kernels promise beyond the harness: the bits of the plain stage rule, the
// natural order, and how they use their work buffer and the allocator, which is this program's own.
#include <dlfcn.h>
#include <gtest/gtest.h>

#include <bit>
#include <climits>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <random>
#include <vector>

#include "tests/harness/guarded_array.h"
#include "zulcore.h"
#include "zulgen.h"

namespace {

// What has gone through the program's own pair, which the library is bound to.
std::vector<std::pair<std::size_t, void*>> allocated;
std::vector<void*> freed;

}  // namespace

extern "C" void* zulMalloc(size_t size) {
  void* block = nullptr;
  if (posix_memalign(&block, 16, size) != 0) return nullptr;
  std::memset(block, 0xff, size);
  allocated.emplace_back(size, block);
  return block;
}

extern "C" void zulFree(void* block) {
  freed.push_back(block);
  std::free(block);
}

namespace {

constexpr int kLastOrder = 13;
constexpr unsigned char kPattern = 0xa5;

template <class T>
constexpr const char* kType = sizeof(T) == sizeof(float) ? "_32f" : "_64f";

template <class T>
struct Kernel {
  explicit Kernel(int order)
      : order(order),
        length(1 << order),
        function(dlsym(RTLD_DEFAULT, ("zulgWHT_" + std::to_string(order) + kType<T>).c_str())) {}

  zulgResult operator()(const T* source, T* destination, zulgScaleFlag flag, void* work) const {
    using Function = zulgResult (*)(const T*, T*, zulgScaleFlag, void*);
    return reinterpret_cast<Function>(function)(source, destination, flag, work);
  }

  std::size_t bytes() const { return length * sizeof(T); }
  std::size_t work_bytes() const {
    int size = -1;
    (sizeof(T) == sizeof(float) ? zulgWHTGetBufferSize_32f : zulgWHTGetBufferSize_64f)(order,
                                                                                       &size);
    return size;
  }

  const int order, length;
  void* const function;
};

template <class T>
std::vector<T> random_samples(int length, unsigned seed) {
  std::mt19937 random(seed);
  std::uniform_real_distribution<double> uniform(-1, 1);
  std::vector<T> samples(length);
  for (T& x : samples) x = static_cast<T>(std::ldexp(uniform(random), random() % 20));
  return samples;
}

// The definition of every rounding.
template <class T>
std::vector<T> by_stage_rule(std::vector<T> v, zulgScaleFlag flag) {
  const double length = v.size();
  const T s = flag == ZULG_SCALE_NONE        ? T(1)
              : flag == ZULG_SCALE_BY_SQRT_N ? static_cast<T>(1.0 / std::sqrt(length))
                                             : static_cast<T>(1.0 / length);
  for (std::size_t bit = 1; bit < v.size(); bit *= 2) {
    for (std::size_t i = 0; i < v.size(); ++i) {
      if (i & bit) continue;
      const T a = v[i], b = v[i + bit];
      v[i] = a + b;
      v[i + bit] = a - b;
    }
  }
  for (T& x : v) x = x * s;
  return v;
}

template <class T>
class Wht : public testing::Test {
 protected:
  void SetUp() override {
    allocated.clear();
    freed.clear();
  }
};
using Types = testing::Types<float, double>;
TYPED_TEST_SUITE(Wht, Types);

// On both bodies, in place or not, with a clean, a dirty and no work buffer. Orders 1 to 7 don't
// look for one: no pointer is too bad.
TYPED_TEST(Wht, HasTheBitsOfTheStageRule) {
  using T = TypeParam;
  for (int order = 1; order <= kLastOrder; ++order) {
    const Kernel<T> kernel(order);
    harness::GuardedArray one(kernel.bytes() + 16), other(kernel.bytes() + 16);
    harness::GuardedArray work(kernel.work_bytes());
    const std::vector<T> input = random_samples<T>(kernel.length, order);
    for (const zulgScaleFlag flag : {1, 2, 4, 8}) {
      const std::vector<T> expected = by_stage_rule(input, flag);
      for (int variant = 0; variant < 3 * 8; ++variant) {
        T* source = reinterpret_cast<T*>(one.at_begin(variant & 1 ? sizeof(T) : 0));
        T* destination = reinterpret_cast<T*>(other.at_begin(variant & 2 ? sizeof(T) : 0));
        if (variant & 4) destination = source;
        other.fill(kPattern);
        work.fill(variant / 8 == 1 ? 0xff : 0);
        std::memcpy(source, input.data(), kernel.bytes());
        void* buffer = order < 8 ? reinterpret_cast<void*>(7) : work.at_begin(0);
        if (variant / 8 == 2) buffer = nullptr;
        ASSERT_EQ(kernel(source, destination, flag, buffer), ZULG_OK);
        ASSERT_EQ(std::memcmp(destination, expected.data(), kernel.bytes()), 0)
            << "order " << order << " flag " << flag << " variant " << variant;
      }
    }
  }
}

// Whole numbers add without rounding, so every output is the sum by definition.
TEST(WhtStageRule, IsTheTransformInNaturalOrder) {
  std::vector<double> x(256);
  for (std::size_t j = 0; j < x.size(); ++j) x[j] = static_cast<double>(j * j % 401);
  const std::vector<double> y = by_stage_rule(x, ZULG_SCALE_NONE);
  for (unsigned k = 0; k < x.size(); ++k) {
    double sum = 0;
    for (unsigned j = 0; j < x.size(); ++j) sum += std::popcount(j & k) % 2 ? -x[j] : x[j];
    EXPECT_EQ(y[k], sum) << k;
  }
}

TYPED_TEST(Wht, TouchesTheStatedBytesOfItsWorkBuffer) {
  using T = TypeParam;
  for (int order = 8; order <= kLastOrder; ++order) {
    const Kernel<T> kernel(order);
    const std::size_t size = kernel.work_bytes();
    harness::GuardedArray work(size + 64);
    const std::vector<T> x(kernel.length + 1, T(1));
    std::vector<T> y(kernel.length + 1);
    for (const int offset : {0, 1}) {
      for (char* const buffer : {work.at_begin(0), work.at_end(size, 0)}) {
        work.fill(kPattern);
        EXPECT_TRUE(harness::runs_without_fault(
            [&] { kernel(x.data() + offset, y.data() + offset, ZULG_SCALE_NONE, buffer); }));
        EXPECT_TRUE(work.is_intact(kPattern, buffer, size)) << order;
        EXPECT_NE(static_cast<unsigned char>(buffer[size - 1]), kPattern) << order;
      }
    }
  }
  EXPECT_TRUE(allocated.empty());
}

// Once if it has no work buffer, and not at all if it fails.
TYPED_TEST(Wht, AllocatesWhatItNeeds) {
  using T = TypeParam;
  for (int order = 1; order <= kLastOrder; ++order) {
    const Kernel<T> kernel(order);
    const std::vector<T> x(kernel.length + 1);
    std::vector<T> y(kernel.length + 1);
    for (const int offset : {0, 1}) {
      this->SetUp();
      const T* const from = x.data() + offset;
      T* const to = y.data() + offset;
      EXPECT_EQ(kernel(from, to, 3, nullptr), ZULG_ERR_FLAG);
      EXPECT_EQ(kernel(nullptr, to, 3, nullptr), ZULG_ERR_NULL_PTR);
      EXPECT_EQ(kernel(from, nullptr, ZULG_SCALE_NONE, nullptr), ZULG_ERR_NULL_PTR);
      ASSERT_TRUE(allocated.empty() && freed.empty()) << order;
      kernel(from, to, ZULG_SCALE_NONE, nullptr);
      ASSERT_EQ(allocated.size(), order < 8 ? 0 : 1) << order;
      ASSERT_EQ(freed.size(), allocated.size()) << order;
      if (order < 8) continue;
      EXPECT_EQ(allocated[0], std::pair(kernel.work_bytes(), freed[0]));
    }
  }
}

TEST(WhtBufferSize, IsTheStatedOne) {
  const int single[] = {0, 0, 0, 0, 0, 0, 0, 0x400, 0x800, 0x1000, 0x2000, 0x4800, 0x8800};
  const int twice[] = {0, 0, 0, 0, 0, 0, 0, 0x800, 0x1000, 0x2000, 0x4800, 0x8800, 0x12000};
  for (int order = 1; order <= kLastOrder; ++order) {
    int size = -1;
    EXPECT_EQ(zulgWHTGetBufferSize_32f(order, &size), ZULG_OK);
    EXPECT_EQ(size, single[order - 1]);
    EXPECT_EQ(zulgWHTGetBufferSize_64f(order, &size), ZULG_OK);
    EXPECT_EQ(size, twice[order - 1]);
  }
  for (const int order : {0, 14, -1, 1 << 30, INT_MAX, INT_MIN}) {
    int size = -1;
    EXPECT_EQ(zulgWHTGetBufferSize_32f(order, &size), ZULG_ERR_SIZE);
    EXPECT_EQ(zulgWHTGetBufferSize_64f(order, &size), ZULG_ERR_SIZE);
    EXPECT_EQ(size, -1);
  }
}

}  // namespace
