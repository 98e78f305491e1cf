// The entries that take a length against the kernels that they pass it on to.
#include <dlfcn.h>
#include <gtest/gtest.h>

#include <climits>
#include <map>

#include "gen/dispatch.h"
#include "gen/manifest.h"
#include "tests/harness/subject.h"

namespace {

using harness::Subject;
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

std::map<std::string, gen::Kernel> kernels_by_name() {
  std::map<std::string, gen::Kernel> result;
  for (gen::Kernel& kernel : gen::all_kernels()) result.emplace(kernel.name, kernel);
  return result;
}

class DispatchEntry : public testing::TestWithParam<gen::DispatchEntry> {
 protected:
  int lowest() const { return GetParam().lowest; }
  int highest() const { return lowest() + static_cast<int>(GetParam().kernels.size()) - 1; }
  const Entry entry = find<Entry>(GetParam().name);
};

TEST_P(DispatchEntry, ReachesTheKernelOfEveryLength) {
  const auto kernels = kernels_by_name();
  int length = lowest();
  for (const std::string& name : GetParam().kernels) {
    const Subject subject{kernels.at(name), nullptr};
    const auto kernel = find<Kernel>(name);
    for (const std::size_t offset : {0, 1}) {
      // Of doubles, so that a work buffer and a source are aligned as vectors are.
      alignas(16) static double source[2 * 8192 + 2], work[3 * 8192];
      store_elements(subject, make_input(subject, harness::Data::kUniform, length),
                     source + offset);
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

INSTANTIATE_TEST_SUITE_P(Manifest, DispatchEntry,
                         testing::ValuesIn(gen::dispatch_entries(gen::all_kernels())),
                         [](const auto& info) { return info.param.name; });

TEST(DispatchEntries, ComeOfTheManifest) {
  gen::Kernel first, second, third;
  first.name = "zulgSum_1_32f";
  second.name = "zulgSum_2_32f";
  third.name = "zulgSum_3_32f";
  first.has_work_argument = true;
  const auto entries = gen::dispatch_entries({first, second, third});
  ASSERT_EQ(entries.size(), 1u);
  EXPECT_EQ(entries[0].name, "zulgSum_32f");
  EXPECT_EQ(entries[0].lowest, 1);
  EXPECT_NE(gen::emit_dispatch(entries[0]).find("int, zulgScaleFlag, void*)"), std::string::npos);
  EXPECT_THROW(gen::dispatch_entries({first, third}), std::runtime_error);
  std::size_t kernels = 0;
  for (const auto& entry : gen::dispatch_entries(gen::all_kernels())) {
    kernels += entry.kernels.size();
  }
  EXPECT_EQ(kernels, gen::all_kernels().size());
}

}  // namespace
