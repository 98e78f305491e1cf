// The entries that take a length against the kernels that they pass it on to; the version record.
#include <dlfcn.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <cmath>
#include <cstring>

#include "tests/harness/subject.h"
#include "zulgen.h"

namespace {

// The work buffer lies where a function without one doesn't look.
using Entry = zulgResult (*)(const void* source, void* destination, int length, zulgScaleFlag flag,
                             void* work);
using Kernel = zulgResult (*)(const void* source, void* destination, zulgScaleFlag flag,
                              void* work);

template <class Function>
Function find(const std::string& name) {
  void* const function = dlsym(RTLD_DEFAULT, name.c_str());
  EXPECT_NE(function, nullptr) << name;
  return reinterpret_cast<Function>(function);
}

const generate::Contents contents = generate::read_contents(LIBRARY_TXT);

class DispatchEntry : public testing::TestWithParam<generate::EntryLine> {
 protected:
  int lowest() const { return GetParam().lowest; }
  int highest() const { return lowest() + static_cast<int>(GetParam().kernels.size()) - 1; }
  const Entry entry = find<Entry>(GetParam().name);
};

TEST_P(DispatchEntry, ReachesTheKernelOfEveryLength) {
  int length = lowest();
  for (const std::string& name : GetParam().kernels) {
    const auto line = std::ranges::find(contents.kernels, name, &generate::KernelLine::name);
    ASSERT_NE(line, contents.kernels.end()) << name;
    const harness::Shape shape{*line};
    const auto kernel = find<Kernel>(name);
    for (const std::size_t offset : {0, 1}) {
      // Of doubles, so that a work buffer and a source are aligned as vectors are.
      alignas(16) static double source[2 * 8192 + 2], work[3 * 8192];
      store_elements(shape, make_input(shape, harness::Data::kUniform, length), source + offset);
      std::vector<double> by_entry(std::size(source), 0.5), by_name = by_entry;
      ASSERT_EQ(entry(source + offset, by_entry.data(), length, ZULG_SCALE_BY_SQRT_N, work),
                ZULG_OK);
      ASSERT_EQ(kernel(source + offset, by_name.data(), ZULG_SCALE_BY_SQRT_N, work), ZULG_OK);
      EXPECT_TRUE(harness::same_bits(by_entry, by_name)) << name;
      EXPECT_NE(by_entry.front(), 0.5) << name;
    }
    double destination = 0.5;
    const double source = 1;
    EXPECT_EQ(entry(nullptr, &destination, length, 3, nullptr), ZULG_ERR_NULL_PTR) << name;
    EXPECT_EQ(entry(&source, nullptr, length, 3, nullptr), ZULG_ERR_NULL_PTR) << name;
    EXPECT_EQ(entry(&source, &destination, length, 3, nullptr), ZULG_ERR_FLAG) << name;
    EXPECT_EQ(destination, 0.5) << name;
    ++length;
  }
}

TEST_P(DispatchEntry, RefusesOtherLengthsFirst) {
  double destination = 0.5;
  const double source = 1;
  for (const int length : {lowest() - 1, 0, -1, highest() + 1, 1000, INT_MAX, INT_MIN,
                           INT_MIN + lowest(), lowest() - 65536}) {
    EXPECT_EQ(entry(&source, &destination, length, ZULG_SCALE_NONE, nullptr), ZULG_ERR_SIZE);
    EXPECT_EQ(entry(nullptr, nullptr, length, 3, nullptr), ZULG_ERR_SIZE) << length;
  }
  EXPECT_EQ(destination, 0.5);
}

// What an impulse becomes is the factor. 1/sqrt(N) is the quotient and root as a program computes
// them in double, of which 18 aren't the nearest ones; rounded to float all are.
TEST(ScaleFactors, AreComputedInDouble) {
  int off = 0;
  for (int n = 2; n <= 64; ++n) {
    const zulg64f impulse[64] = {1};
    const zulg32f single_impulse[64] = {1};
    zulg64f y[64];
    zulg32f z[64];
    const auto expect = [&](zulgScaleFlag flag, double factor) {
      ASSERT_EQ(zulgHartley_64f(impulse, y, n, flag), ZULG_OK);
      ASSERT_EQ(zulgHartley_32f(single_impulse, z, n, flag), ZULG_OK);
      EXPECT_EQ(y[0], factor) << n;
      EXPECT_EQ(z[0], static_cast<float>(factor)) << n;
    };
    expect(ZULG_SCALE_NONE, 1);
    expect(ZULG_SCALE_FWD_BY_N, 1.0 / n);
    expect(ZULG_SCALE_BY_SQRT_N, 1 / std::sqrt(static_cast<double>(n)));
    const long double exact = 1 / sqrtl(n);
    off += y[0] != static_cast<double>(exact);
    EXPECT_EQ(z[0], static_cast<float>(exact)) << n;
  }
  EXPECT_EQ(off, 18);
}

INSTANTIATE_TEST_SUITE_P(Manifest, DispatchEntry, testing::ValuesIn(contents.entries),
                         [](const auto& info) { return info.param.name; });

TEST(Version, IsTheOneRecord) {
  const zulgLibVersion* version = zulgenGetLibVersion();
  EXPECT_EQ(version, zulgenGetLibVersion());
  EXPECT_EQ(version->major, 6);
  EXPECT_EQ(version->minor, 1);
  EXPECT_EQ(version->majorBuild, 137);
  EXPECT_EQ(version->build, 336);
  EXPECT_EQ(std::memcmp(version->targetCode, "s8\0\0", 4), 0);
  EXPECT_STREQ(version->name, "libzulgens8.so.6.1");
  EXPECT_STREQ(version->version, "6.1 build 137.56");
  EXPECT_STREQ(version->buildDate, "Mar 17 2010");
}

}  // namespace
