// The arithmetic of the real kernels and of the Hartley kernels against the tables of wanted
// counts.
#include <gtest/gtest.h>

#include "dft_real/dft_real.h"
#include "dft_real/sign_flips.h"
#include "gen/count.h"
#include "hartley/hartley.h"
#include "tests/sample_sets.h"
#include "tests/tables.h"

namespace {

using gen::Graph;
using gen::Kernel;
using gen::NodeId;
using gen::Op;

template <class Condition>
int count_nodes(const Graph& graph, Condition condition) {
  const std::vector<bool> live = graph.live_nodes();
  int count = 0;
  for (NodeId id = 0; id < graph.size(); ++id) count += live[id] && condition(graph[id]);
  return count;
}

// Products by 2, which stand for the conjugate bins.
int count_doublings(const Graph& graph) {
  return count_nodes(graph, [&](const gen::Node& node) {
    return node.op == Op::kMul && graph.factor(node, 0) == gen::Number(2);
  });
}

int count_double_scaled(const Graph& graph) {
  return count_nodes(graph, [](const gen::Node& node) {
    return node.op == Op::kScale && node.precision == gen::Precision::kDouble;
  });
}

bool is_forward(const Kernel& kernel) { return kernel.direction == gen::Direction::kForward; }

TEST(RealCounts, EqualTheTables) {
  const Table forward = read_table("real_forward.csv"), inverse = read_table("real_inverse.csv");
  for (const Kernel& kernel : dft_real::kernels()) {
    const Graph graph = kernel.graph();
    const gen::Counts counts = gen::count_operations(graph);
    const int flips = dft_real::count_sign_flips(graph), double_scaled = count_double_scaled(graph);
    const int doublings = is_forward(kernel) ? 0 : count_doublings(graph);
    const auto& row = (is_forward(kernel) ? forward : inverse).at(kernel.length());
    const auto wanted = [&](int column) { return std::stoi(row[column]); };
    EXPECT_EQ(counts.additions, wanted(1)) << kernel.name;
    EXPECT_EQ(counts.multiplications - doublings, wanted(2)) << kernel.name;
    EXPECT_EQ(is_forward(kernel) ? flips : doublings, wanted(3)) << kernel.name;
    if (!is_forward(kernel)) {
      EXPECT_EQ(flips, 0) << kernel.name;
    }
    if (kernel.is_single()) {
      EXPECT_EQ(double_scaled, is_forward(kernel) ? wanted(4) : 0) << kernel.name;
    }
  }
}

// The order in which the factors of a length are applied. In Rader's form, that is the order of the
// length below.
std::string applied_blocks(const Graph& graph, int n, bool forward) {
  const std::vector<SampleSet> places = single_places(n);
  const bool rader = networks::is_prime(n) && n > 11;
  std::string blocks;
  for (const int block :
       complete_cosets(rader ? permuted(places) : places, sample_sets(graph, !forward, 1))) {
    blocks += (blocks.empty() ? "" : " ") + std::to_string(block);
  }
  return blocks;
}

std::string wanted_blocks(int n, bool forward) {
  // Where the core below does not end with the pairs x[j], x[N - j], the mirror image of another
  // order does.
  static const std::map<int, std::string> kPairsLast = {
      {29, "2 4 14"}, {31, "2 6"}, {37, "2 4 6 12 18"}, {43, "2 14"}, {61, "2 4 6 12 30"}};
  if (!forward && kPairsLast.contains(n)) return kPairsLast.at(n);
  static const Table tables[] = {read_table("real_inverse.csv"), read_table("real_forward.csv")};
  return tables[forward].at(networks::is_prime(n) && n > 11 ? n - 1 : n)[0];
}

TEST(RealCounts, FactorsAreAppliedInTheOrderOfTheTables) {
  for (const Kernel& kernel : dft_real::kernels()) {
    const int n = kernel.length();
    const bool forward = is_forward(kernel);
    EXPECT_EQ(applied_blocks(kernel.graph(), n, forward), wanted_blocks(n, forward)) << kernel.name;
  }
}

TEST(RealCounts, HartleyKernelsEqualTheTable) {
  const Table table = read_table("hartley.csv");
  for (const Kernel& kernel : hartley::kernels()) {
    const Graph graph = kernel.graph();
    const gen::Counts counts = gen::count_operations(graph);
    const int n = kernel.length();
    const std::vector<std::string>& row = table.at(n);
    EXPECT_EQ(counts.additions, std::stoi(row[1])) << kernel.name;
    EXPECT_EQ(counts.multiplications, std::stoi(row[2])) << kernel.name;
    // Which core it is that has butterflies before or behind it.
    const bool forward = row[0] != "input";
    EXPECT_EQ(applied_blocks(graph, n, forward), wanted_blocks(n, forward)) << kernel.name;
    if (kernel.is_single()) {
      EXPECT_EQ(count_double_scaled(graph), 0) << kernel.name;
    }
  }
}

// Widenings and roundings of the single-precision forward kernels; where outputs are scaled in
// double precision, the factor is widened, too.
TEST(RealCounts, ConversionsAreThoseStated) {
  const std::map<int, int> stated = {{3, 6},   {5, 10},   {8, 4},   {11, 22},
                                     {32, 56}, {47, 748}, {64, 152}};
  int checked = 0;
  for (const Kernel& kernel : dft_real::kernels()) {
    const Graph graph = kernel.graph();
    int conversions = count_nodes(graph, [](const gen::Node& node) {
      return node.op == Op::kWiden || node.op == Op::kRound;
    });
    if (!kernel.is_single()) {
      EXPECT_EQ(conversions, 0) << kernel.name;
    } else if (is_forward(kernel) && stated.contains(kernel.length())) {
      if (count_double_scaled(graph) > 0) ++conversions;
      EXPECT_EQ(conversions, stated.at(kernel.length())) << kernel.name;
      ++checked;
    }
  }
  EXPECT_EQ(checked, 3 * 7);
}

}  // namespace
