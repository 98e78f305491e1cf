// The arithmetic of every kernel against the table of wanted counts.
#include <gtest/gtest.h>

#include <map>

#include "gen/count.h"
#include "gen/manifest.h"

namespace {

struct Row {
  int additions, multiplications;
  int inverse_multiplications = multiplications;
};

const std::map<int, Row> kComplex32fc = {
    {2, {4, 0}},      {3, {12, 4}},          {4, {16, 0}},     {5, {32, 16}},
    {6, {36, 8}},     {8, {52, 6}},          {9, {80, 40}},    {10, {84, 32}},
    {12, {96, 16}},   {15, {156, 68}},       {16, {144, 28}},  {18, {200, 88}},
    {20, {208, 64}},  {24, {264, 78, 74}},   {25, {352, 224}}, {27, {380, 220}},
    {30, {372, 136}}, {32, {376, 92}},       {36, {464, 160}}, {40, {548, 230}},
    {45, {704, 376}}, {48, {636, 180, 176}}, {50, {812, 464}}, {54, {872, 448}},
    {60, {944, 432}}, {64, {928, 252}},
};

TEST(Counts, EqualTheTable) {
  for (const gen::Kernel& kernel : gen::all_kernels()) {
    const Row& row = kComplex32fc.at(kernel.length);
    const bool forward = kernel.scale_rule == gen::ScaleRule::kForward;
    const gen::Counts counts = gen::count_operations(kernel.graph());
    EXPECT_EQ(counts.additions, row.additions) << kernel.name;
    EXPECT_EQ(counts.multiplications, forward ? row.multiplications : row.inverse_multiplications)
        << kernel.name;
  }
}

// Only lengths 3 and 5 hold double precision, and only where constants are.
TEST(Counts, ConversionsStandInTheScalarKernelsAlone) {
  const std::map<int, std::pair<int, int>> widened_and_rounded = {{3, {6, 4}}, {5, {10, 8}}};
  for (const gen::Kernel& kernel : gen::all_kernels()) {
    const gen::Graph graph = kernel.graph();
    std::pair<int, int> conversions;
    for (gen::NodeId id = 0; id < graph.size(); ++id) {
      conversions.first += graph[id].op == gen::Op::kWiden;
      conversions.second += graph[id].op == gen::Op::kRound;
    }
    const auto expected = widened_and_rounded.find(kernel.length);
    EXPECT_EQ(conversions,
              expected == widened_and_rounded.end() ? std::pair(0, 0) : expected->second)
        << kernel.name;
  }
}

}  // namespace
