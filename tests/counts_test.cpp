// The arithmetic of the complex and the Walsh-Hadamard kernels against the tables of wanted counts.
#include <gtest/gtest.h>

#include <map>

#include "dft_complex/dft_complex.h"
#include "gen/count.h"
#include "networks/tree.h"
#include "wht/kernels/kernels.h"

namespace {

struct Row {
  int additions, multiplications;
  int inverse_multiplications = multiplications;
};

const std::map<int, Row> kComposite32fc = {
    {2, {4, 0}},         {3, {12, 4}},       {4, {16, 0}},          {5, {32, 16}},
    {6, {36, 8}},        {8, {52, 6}},       {9, {80, 40}},         {10, {84, 32}},
    {12, {96, 16}},      {14, {148, 72}},    {15, {156, 68}},       {16, {144, 28}},
    {18, {200, 88}},     {20, {208, 64}},    {21, {264, 136}},      {22, {324, 200}},
    {24, {264, 78, 74}}, {25, {352, 224}},   {26, {404, 144}},      {27, {380, 220}},
    {28, {352, 144}},    {30, {372, 136}},   {32, {376, 92}},       {33, {552, 344}},
    {34, {596, 216}},    {35, {524, 292}},   {36, {464, 160}},      {38, {820, 464}},
    {39, {684, 268}},    {40, {548, 230}},   {42, {612, 272}},      {44, {736, 400}},
    {45, {704, 376}},    {46, {1424, 1024}}, {48, {636, 180, 176}}, {49, {912, 648}},
    {50, {812, 464}},    {51, {996, 392}},   {52, {912, 288}},      {54, {872, 448}},
    {55, {1052, 676}},   {56, {892, 438}},   {57, {1344, 772}},     {58, {1428, 792}},
    {60, {944, 432}},    {62, {1568, 872}},  {63, {1100, 604}},     {64, {928, 252}},
};

const std::map<int, Row> kComposite64fc = {
    {2, {4, 0}},       {3, {12, 4}},      {4, {16, 0}},      {5, {32, 16}},     {6, {36, 8}},
    {8, {52, 4}},      {9, {80, 40}},     {10, {84, 24}},    {12, {96, 16}},    {14, {148, 72}},
    {15, {156, 68}},   {16, {144, 24}},   {18, {196, 80}},   {20, {208, 64}},   {21, {264, 136}},
    {22, {324, 200}},  {24, {252, 44}},   {25, {352, 224}},  {26, {412, 164}},  {27, {380, 220}},
    {28, {352, 144}},  {30, {372, 136}},  {32, {376, 88}},   {33, {552, 344}},  {34, {604, 224}},
    {35, {532, 260}},  {36, {464, 160}},  {38, {804, 432}},  {39, {696, 298}},  {40, {516, 148}},
    {42, {612, 272}},  {44, {736, 400}},  {45, {688, 344}},  {46, {1380, 968}}, {48, {624, 136}},
    {49, {912, 648}},  {50, {804, 400}},  {51, {1008, 404}}, {52, {928, 328}},  {54, {868, 440}},
    {55, {1052, 676}}, {56, {844, 316}},  {57, {1320, 724}}, {58, {1452, 840}}, {60, {864, 256}},
    {62, {1508, 768}}, {63, {1100, 604}}, {64, {920, 264}},
};

const std::map<int, Row> kPrime32fc = {
    {7, {90, 40}},     {11, {198, 104}},   {13, {226, 80}},    {17, {346, 148}},
    {19, {454, 256}},  {23, {698, 488}},   {29, {770, 400}},   {31, {814, 392}},
    {37, {1010, 464}}, {41, {1202, 644}},  {43, {1318, 712}},  {47, {3220, 1712}},
    {53, {1938, 800}}, {59, {4494, 2390}}, {61, {2082, 1176}},
};

const std::map<int, Row> kPrime64fc = {
    {7, {60, 36}},     {11, {140, 100}},   {13, {180, 82}},   {17, {268, 112}},   {19, {364, 216}},
    {23, {644, 484}},  {29, {668, 420}},   {31, {692, 384}},  {37, {896, 512}},   {41, {976, 452}},
    {43, {1172, 754}}, {47, {2676, 2116}}, {53, {1816, 976}}, {59, {2820, 1956}}, {61, {1644, 834}},
};

TEST(Counts, EqualTheTables) {
  for (const gen::Kernel& kernel : dft_complex::kernels()) {
    const bool single = kernel.precision == gen::Precision::kSingle;
    const auto& composite = single ? kComposite32fc : kComposite64fc;
    const auto row = composite.find(kernel.length());
    const bool forward = kernel.direction == gen::Direction::kForward;
    if (row != composite.end()) {
      const gen::Counts counts = gen::count_operations(kernel.graph());
      EXPECT_EQ(counts.additions, row->second.additions) << kernel.name;
      EXPECT_EQ(counts.multiplications,
                forward ? row->second.multiplications : row->second.inverse_multiplications)
          << kernel.name;
    } else if (!single) {
      const Row& prime = kPrime64fc.at(kernel.length());
      EXPECT_EQ(gen::count_operations(kernel.graph()),
                (gen::Counts{prime.additions, prime.multiplications}))
          << kernel.name;
    }
  }
}

// Prime lengths of two samples a vector are counted with what idle lanes carry. How many zeros are
// added in the lane beside x[0] is the one thing that the arrangement settles.
TEST(Counts, OfPrimeLengthsIncludeIdleLanes) {
  for (const gen::Kernel& kernel : dft_complex::kernels()) {
    const auto row = kPrime32fc.find(kernel.length());
    if (kernel.precision != gen::Precision::kSingle || row == kPrime32fc.end()) continue;
    const gen::Counts counts = gen::count_carried_operations(kernel.graph());
    const auto [additions, multiplications, inverse] = row->second;
    if (kernel.length() == 47) {
      EXPECT_LE(counts.additions, additions) << kernel.name;
      EXPECT_LE(counts.multiplications, multiplications) << kernel.name;
      continue;
    }
    const bool exact = kernel.length() == 7 || kernel.length() == 23 || kernel.length() == 59;
    EXPECT_LE(counts.additions, additions) << kernel.name;
    EXPECT_GE(counts.additions, additions - (exact ? 0 : 6)) << kernel.name;
    EXPECT_EQ(counts.multiplications, multiplications) << kernel.name;
  }
}

// In single precision, only lengths 3 and 5 hold double precision, and only where constants are.
TEST(Counts, ConversionsStandInTheScalarKernelsAlone) {
  const std::map<int, std::pair<int, int>> widened_and_rounded = {{3, {6, 4}}, {5, {10, 8}}};
  for (const gen::Kernel& kernel : dft_complex::kernels()) {
    const gen::Graph graph = kernel.graph();
    std::pair<int, int> conversions, expected;
    for (gen::NodeId id = 0; id < graph.size(); ++id) {
      conversions.first += graph[id].op == gen::Op::kWiden;
      conversions.second += graph[id].op == gen::Op::kRound;
    }
    const auto stated = widened_and_rounded.find(kernel.length());
    if (kernel.precision == gen::Precision::kSingle && stated != widened_and_rounded.end()) {
      expected = stated->second;
    }
    EXPECT_EQ(conversions, expected) << kernel.name;
  }
}

// Until their last combination, no value of a double-precision kernel depends on both lanes.
TEST(Counts, DoublePrecisionKernelsSwapOnceAPairOfBins) {
  for (const gen::Kernel& kernel : dft_complex::kernels()) {
    if (kernel.precision != gen::Precision::kDouble) continue;
    const gen::Graph graph = kernel.graph();
    const std::vector<bool> live = graph.live_nodes();
    int swaps = 0;
    for (gen::NodeId id = 0; id < graph.size(); ++id) {
      const gen::Node& node = graph[id];
      if (!live[id] || node.op != gen::Op::kLanes) continue;
      swaps += graph[node.picks[0].node].op != gen::Op::kInput;
    }
    EXPECT_EQ(swaps, (kernel.length() - 1) / 2) << kernel.name;
  }
}

// Half of them are subtractions; besides there is one product a sample.
TEST(WhtCounts, AreOneAdditionASampleAndStage) {
  for (const gen::Kernel& kernel : wht::kernels()) {
    const gen::Graph graph = kernel.graph();
    const std::vector<bool> live = graph.live_nodes();
    std::map<gen::Op, int> lanes;
    for (gen::NodeId id = 0; id < graph.size(); ++id) {
      if (live[id]) lanes[graph[id].op] += graph[id].lane_count;
    }
    const int stages = kernel.number;
    const int additions = stages * kernel.length();
    EXPECT_EQ(gen::count_operations(graph), (gen::Counts{additions, 0})) << kernel.name;
    EXPECT_EQ(lanes[gen::Op::kAdd], additions / 2) << kernel.name;
    EXPECT_EQ(lanes[gen::Op::kSub], additions / 2) << kernel.name;
    EXPECT_EQ(lanes[gen::Op::kScale], kernel.length()) << kernel.name;
    EXPECT_EQ(lanes[gen::Op::kFlipSigns], 0) << kernel.name;
  }
}

}  // namespace
