// The DCT-IV as the library exports it, in both sample types.
#include <gtest/gtest.h>

#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <limits>

#include "tests/dct4_model.h"
#include "tests/harness/guarded_array.h"
#include "zulcore.h"
#include "zulgen.h"

namespace {

int blocks_held = 0;
bool has_memory = true;

}  // namespace

// The library takes its allocator from the program.
extern "C" void* zulMalloc(std::size_t size) {
  void* const block = has_memory ? std::malloc(size) : nullptr;
  blocks_held += block != nullptr;
  return block;
}
extern "C" void zulFree(void* block) {
  blocks_held -= block != nullptr;
  std::free(block);
}

namespace {

#define FUNCTIONS_OF(name, type, sample, first_odd)              \
  struct name {                                                  \
    using Sample = sample;                                       \
    using Spec = zulgDCT4Spec_##type;                            \
    static constexpr const char* kName = "zulgDCT4_" #type "_";  \
    static constexpr int kFirstOdd = first_odd;                  \
    static constexpr auto get_size = zulgDCT4GetSize_##type;     \
    static constexpr auto init = zulgDCT4Init_##type;            \
    static constexpr auto init_alloc = zulgDCT4InitAlloc_##type; \
    static constexpr auto run = zulgDCT4_##type;                 \
    static constexpr auto free = zulgDCT4Free_##type;            \
  }
FUNCTIONS_OF(Single, 32f, float, 33);
FUNCTIONS_OF(Double, 64f, double, 9);

template <class Type>
class Dct4 : public testing::Test {
 public:
  using Sample = typename Type::Sample;
  using Samples = std::vector<Sample>;

  // Of a plan that ends with the object.
  struct Plan {
    explicit Plan(int n) { EXPECT_EQ(Type::init_alloc(&spec, n), ZULG_OK) << n; }
    ~Plan() { EXPECT_EQ(Type::free(spec), ZULG_OK); }
    Samples run(const Samples& x) {
      Samples y(x.size());
      EXPECT_EQ(Type::run(x.data(), y.data(), spec), ZULG_OK);
      return y;
    }
    typename Type::Spec* spec = nullptr;
  };

  static Samples random_samples(int n, int seed = 1) {
    return dct4_model::random_samples<Sample>(n, seed);
  }
};
using Types = testing::Types<Single, Double>;
TYPED_TEST_SUITE(Dct4, Types);

TEST(Dct4Model, IsTheDefinition) {
  for (int n : {2, 4, 32, 256}) {
    const auto x = dct4_model::random_samples<double>(n);
    const auto y = dct4_model::fast_sum(x);
    for (int k = 0; k < n; ++k) {
      long double sum = 0;
      for (int j = 0; j < n; ++j) sum += x[j] * cosl(M_PIl / n * (j + 0.5L) * (k + 0.5L));
      EXPECT_LT(fabsl(sum - y[k]), 1e-16L * n) << n;
    }
  }
}

// Errors of single operations add up as in a random walk of the depth of the data flow; stages of
// radix 2 to 4 add some 0.3 u each time the length doubles. Length 4 turns by lifting steps, whose
// tangents pass errors on almost unattenuated. The errors go behind those in a file, if one is
// named.
TYPED_TEST(Dct4, IsAccurate) {
  const char* const file = std::getenv("ZULGEN_ERROR_CSV");
  std::ofstream csv(file != nullptr ? file : "/dev/null", std::ios::app);
  for (int log = 1; log <= 18; ++log) {
    const int n = 1 << log, inputs = n < 1024 ? 4096 / n : 2;
    typename TestFixture::Plan plan(n);
    long double error = 0, norm = 0;
    for (int seed = 0; seed < inputs; ++seed) {
      const auto x = this->random_samples(n, seed);
      const auto y = plan.run(x);
      const auto wanted = dct4_model::fast_sum(x);
      for (int k = 0; k < n; ++k) {
        error += (y[k] - wanted[k]) * (y[k] - wanted[k]);
        norm += wanted[k] * wanted[k];
      }
    }
    const double bound = n == 4 ? 1.3 : 0.6 + 0.3 * log;
    const double unit = std::numeric_limits<typename TypeParam::Sample>::epsilon() / 2;
    const double in_units = static_cast<double>(sqrtl(error / norm)) / unit;
    EXPECT_LE(in_units, bound) << n;
    csv << TypeParam::kName << n << "," << in_units << "\n";
  }
}

// Nothing hangs on alignment, on where the block lies, or on what ran before; and nothing but block
// and arrays is touched.
TYPED_TEST(Dct4, GivesTheSameBitsEverywhere) {
  using Sample = typename TestFixture::Sample;
  for (int n = 2; n <= 1 << 18; n *= 2) {
    const auto x = this->random_samples(n);
    typename TestFixture::Plan plan(n);
    const auto wanted = plan.run(x);
    plan.run(this->random_samples(n, 2));
    EXPECT_EQ(plan.run(x), wanted) << n;

    auto both = x;
    EXPECT_EQ(TypeParam::run(both.data(), both.data(), plan.spec), ZULG_OK);
    EXPECT_EQ(both, wanted) << n;

    int size = 0;
    ASSERT_EQ(TypeParam::get_size(n, &size), ZULG_OK);
    const std::size_t bytes = n * sizeof(Sample);
    // A block off 32 bytes is 32 bytes longer: base cases need these above half of a 32-bit address
    // space.
    harness::GuardedArray block(size + 64), source(bytes + 16), destination(bytes + 16);
    char* const blocks[] = {block.at_end(size, 0), block.at_begin(1), block.at_begin(11),
                            block.at_begin(31)};
    for (int place = 0; place < 4; ++place) {
      const auto put = [&](harness::GuardedArray& array) {
        return reinterpret_cast<Sample*>(place == 0 ? array.at_end(bytes, bytes % 16)
                                                    : array.at_begin((place - 1) * sizeof(Sample)));
      };
      Sample *const src = put(source), *const dst = put(destination);
      destination.fill(0x5a);
      block.fill(0x5a);
      std::copy(x.begin(), x.end(), src);
      source.set_writable(false);
      EXPECT_TRUE(harness::runs_without_fault([&] {
        typename TypeParam::Spec* spec = nullptr;
        EXPECT_EQ(TypeParam::init(&spec, n, reinterpret_cast<unsigned char*>(blocks[place])),
                  ZULG_OK);
        EXPECT_EQ(reinterpret_cast<std::uintptr_t>(spec) % 32, 0u);
        EXPECT_EQ(TypeParam::run(src, dst, spec), ZULG_OK);
      })) << n;
      source.set_writable(true);
      EXPECT_TRUE(block.is_intact(0x5a, blocks[place], size + (place == 0 ? 0 : 32))) << n;
      EXPECT_TRUE(std::equal(wanted.begin(), wanted.end(), dst)) << n;
      EXPECT_TRUE(destination.is_intact(0x5a, reinterpret_cast<char*>(dst), bytes)) << n;
    }
  }
}

TYPED_TEST(Dct4, RefusesWhatItCant) {
  using Spec = typename TypeParam::Spec;
  using Sample = typename TestFixture::Sample;
  Spec* const before = reinterpret_cast<Spec*>(&has_memory);
  Spec* spec = before;
  std::vector<unsigned char> buffer(65536, 0xa5);
  const auto untouched = buffer;
  EXPECT_EQ(TypeParam::init(nullptr, 64, buffer.data()), ZULG_ERR_NULL_PTR);
  EXPECT_EQ(TypeParam::init(&spec, 64, nullptr), ZULG_ERR_NULL_PTR);
  EXPECT_EQ(TypeParam::init(nullptr, 3, buffer.data()), ZULG_ERR_NULL_PTR);
  EXPECT_EQ(buffer, untouched);
  EXPECT_EQ(TypeParam::init_alloc(nullptr, 64), ZULG_ERR_NULL_PTR);
  EXPECT_EQ(TypeParam::free(nullptr), ZULG_ERR_NULL_PTR);
  for (int n : {-2147483647 - 1, -64, -1, 0, 1, 3, 5, 6, 7, 12, 96, 192, 1 << 28}) {
    int size = -7;
    EXPECT_EQ(TypeParam::get_size(n, &size), ZULG_ERR_SIZE) << n;
    EXPECT_EQ(size, -7) << n;
    EXPECT_EQ(TypeParam::init_alloc(&spec, n), ZULG_ERR_SIZE) << n;
    if (n > 0 && n < 1000) {
      EXPECT_EQ(TypeParam::init(&spec, n, buffer.data()), ZULG_ERR_SIZE) << n;
    }
  }
  EXPECT_NE(buffer, untouched);
  const int held = blocks_held;
  has_memory = false;
  EXPECT_EQ(TypeParam::init_alloc(&spec, 64), ZULG_ERR_NULL_PTR);
  has_memory = true;
  EXPECT_EQ(blocks_held, held);
  EXPECT_EQ(spec, before);

  for (int n : {8, 64}) {
    typename TestFixture::Plan plan(n);
    EXPECT_EQ(blocks_held, held + 1);
    const std::vector<Sample> x(n, 1), marked(n, 3);
    auto y = marked;
    EXPECT_EQ(TypeParam::run(nullptr, y.data(), plan.spec), ZULG_ERR_NULL_PTR);
    EXPECT_EQ(TypeParam::run(x.data(), nullptr, plan.spec), ZULG_ERR_NULL_PTR);
    EXPECT_EQ(TypeParam::run(x.data(), y.data(), nullptr), ZULG_ERR_NULL_PTR);
    EXPECT_EQ(y, marked);
  }
  EXPECT_EQ(blocks_held, held);
}

// What GetSize accepts, and InitAlloc after it, of the powers of two and their successors. From
// 2^27 on the size has overflowed, and no block of it holds even the samples.
TYPED_TEST(Dct4, AcceptsTheseLengths) {
  using Sample = typename TestFixture::Sample;
  constexpr std::int64_t kSampleBytes = sizeof(Sample);
  for (int log = 1; log <= 30; ++log) {
    for (const int n : {1 << log, (1 << log) + 1}) {
      const bool is_accepted = dct4_model::is_accepted<Sample>(n);
      int size = 0;
      EXPECT_EQ(TypeParam::get_size(n, &size), is_accepted ? ZULG_OK : ZULG_ERR_SIZE) << n;
      if (is_accepted && log >= 27) {
        EXPECT_LT(size, n * kSampleBytes) << n;
      } else if (is_accepted && log > 5) {
        EXPECT_GT(size, n * kSampleBytes) << n;
      }
      typename TypeParam::Spec* spec = nullptr;
      has_memory = false;
      EXPECT_EQ(TypeParam::init_alloc(&spec, n), is_accepted ? ZULG_ERR_NULL_PTR : ZULG_ERR_SIZE);
      has_memory = true;
    }
  }
}

// A plan of 2 to 32 may be shared by threads, since calls leave it as it is; longer ones work in
// it.
TYPED_TEST(Dct4, WorksInItsPlanFrom64On) {
  for (int n = 2; n <= 256; n *= 2) {
    int size = 0;
    ASSERT_EQ(TypeParam::get_size(n, &size), ZULG_OK);
    std::vector<unsigned char> block(size + 32);
    typename TypeParam::Spec* spec = nullptr;
    ASSERT_EQ(TypeParam::init(&spec, n, block.data()), ZULG_OK);
    const auto before = block;
    auto x = this->random_samples(n);
    EXPECT_EQ(TypeParam::run(x.data(), x.data(), spec), ZULG_OK);
    EXPECT_EQ(block == before, n <= 32) << n;
  }
}

// Memory that isn't a plan is found by its rule alone: a plan of the other type has one.
TYPED_TEST(Dct4, TellsFewThingsFromAPlan) {
  std::vector<typename TestFixture::Sample> x(8, 1), y(8, 3);
  std::vector<double> zeros(64);
  EXPECT_EQ(
      TypeParam::run(x.data(), y.data(), reinterpret_cast<typename TypeParam::Spec*>(zeros.data())),
      ZULG_ERR_CONTEXT);
  EXPECT_EQ(y, std::vector<typename TestFixture::Sample>(8, 3));
  Dct4<Single>::Plan single(8);
  Dct4<Double>::Plan full(8);
  void* const other = sizeof x[0] == 4 ? static_cast<void*>(full.spec) : single.spec;
  EXPECT_EQ(TypeParam::run(x.data(), y.data(), static_cast<typename TypeParam::Spec*>(other)),
            ZULG_OK);
}

// A plan of 2^k + 1 is accepted, is that of 2^k with other addresses, and reaches one element
// further. Of 33 samples, 8 are not read; the same 8 of the result are not written.
TYPED_TEST(Dct4, RunsPlansOfPowersPlusOne) {
  using Sample = typename TestFixture::Sample;
  for (int power = TypeParam::kFirstOdd - 1; power <= 4096; power *= 2) {
    const int n = power + 1;
    typename TestFixture::Plan plan(n);
    std::vector<Sample> x = this->random_samples(n + 1), y(n + 2, 99), again(n + 2, 99);
    EXPECT_EQ(TypeParam::run(x.data(), y.data(), plan.spec), ZULG_OK);
    EXPECT_NE(y[n], 99) << n;
    EXPECT_EQ(y[n + 1], 99) << n;
    if (n != 33) continue;
    std::vector<int> unwritten;
    for (int k = 0; k <= n; ++k) {
      if (y[k] == 99) unwritten.push_back(k);
    }
    const std::vector<int> wanted = {4, 5, 12, 13, 20, 21, 28, 29};
    EXPECT_EQ(unwritten, wanted);
    for (int j : wanted) x[j] = 12345;
    TypeParam::run(x.data(), again.data(), plan.spec);
    EXPECT_EQ(again, y);
    x[n] += 1;
    TypeParam::run(x.data(), again.data(), plan.spec);
    EXPECT_NE(again, y);
  }
}

}  // namespace
