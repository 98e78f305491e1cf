// The arithmetic of the real kernels and of the Hartley kernels against the tables of wanted
// counts.
#include <gtest/gtest.h>

#include <cstdint>
#include <fstream>
#include <map>
#include <set>
#include <sstream>

#include "dft_real/dft_real.h"
#include "dft_real/sign_flips.h"
#include "gen/count.h"
#include "hartley/hartley.h"

namespace {

using gen::Graph;
using gen::Kernel;
using gen::NodeId;
using gen::Op;

// Rows by length; cells by column.
using Table = std::map<int, std::vector<std::string>>;

Table read_table(const std::string& file) {
  std::ifstream in(TABLES "/" + file);
  Table table;
  std::string line, cell;
  std::getline(in, line);
  while (std::getline(in, line)) {
    std::istringstream cells(line);
    std::getline(cells, cell, ',');
    std::vector<std::string>& row = table[std::stoi(cell)];
    while (std::getline(cells, cell, ',')) row.push_back(cell);
  }
  EXPECT_EQ(table.size(), 63u) << file;
  return table;
}

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
bool is_single(const Kernel& kernel) { return kernel.precision == gen::Precision::kSingle; }

// The proper divisors b of n for which every coset of indices modulo n / b, which has b members, is
// among the sets.
std::string complete_cosets(int n, const std::set<std::uint64_t>& sets) {
  std::string blocks;
  for (int size = 2; size < n; ++size) {
    if (n % size != 0) continue;
    bool complete = true;
    for (int first = 0; first < n / size; ++first) {
      std::uint64_t coset = 0;
      for (int i = first; i < n; i += n / size) coset |= std::uint64_t{1} << i;
      complete = complete && sets.contains(coset);
    }
    if (complete) blocks += (blocks.empty() ? "" : " ") + std::to_string(size);
  }
  return blocks;
}

// The sets of inputs that values depend on.
std::set<std::uint64_t> supports(const Graph& graph) {
  std::vector<std::uint64_t> support(graph.size());
  for (NodeId id = 0; id < graph.size(); ++id) {
    if (graph[id].op == Op::kInput) support[id] = std::uint64_t{1} << graph[id].element;
    for (NodeId operand : graph.operands(id)) support[id] |= support[operand];
  }
  return {support.begin(), support.end()};
}

// The sets of outputs that values feed.
std::set<std::uint64_t> reaches(const Graph& graph) {
  std::vector<std::uint64_t> reach(graph.size());
  for (const gen::Output& out : graph.outputs()) {
    reach[out.from.node] |= std::uint64_t{1} << out.element;
  }
  for (NodeId id = graph.size() - 1; id >= 0; --id) {
    for (NodeId operand : graph.operands(id)) reach[operand] |= reach[id];
  }
  return {reach.begin(), reach.end()};
}

TEST(RealCounts, EqualTheTables) {
  const Table forward = read_table("real_forward.csv"), inverse = read_table("real_inverse.csv");
  for (const Kernel& kernel : dft_real::kernels()) {
    const Graph graph = kernel.graph();
    const gen::Counts counts = gen::count_operations(graph);
    const auto wanted = [&](const Table& table, int column) {
      return std::stoi(table.at(kernel.length())[column]);
    };
    const int double_scaled = count_double_scaled(graph);
    if (is_forward(kernel)) {
      EXPECT_EQ(counts.additions, wanted(forward, 1)) << kernel.name;
      EXPECT_EQ(counts.multiplications, wanted(forward, 2)) << kernel.name;
      EXPECT_EQ(dft_real::count_sign_flips(graph), wanted(forward, 3)) << kernel.name;
      if (is_single(kernel)) {
        EXPECT_EQ(double_scaled, wanted(forward, 4)) << kernel.name;
      }
    } else {
      const int doublings = count_doublings(graph);
      EXPECT_EQ(counts.additions, wanted(inverse, 1)) << kernel.name;
      EXPECT_EQ(counts.multiplications - doublings, wanted(inverse, 2)) << kernel.name;
      EXPECT_EQ(doublings, wanted(inverse, 3)) << kernel.name;
      EXPECT_EQ(dft_real::count_sign_flips(graph), 0) << kernel.name;
      if (is_single(kernel)) {
        EXPECT_EQ(double_scaled, 0) << kernel.name;
      }
    }
  }
}

// The order in which the factors of a length are applied shows in what the values depend on.
TEST(RealCounts, FactorsAreAppliedInTheOrderOfTheTables) {
  const Table forward = read_table("real_forward.csv"), inverse = read_table("real_inverse.csv");
  for (const Kernel& kernel : dft_real::kernels()) {
    const int n = kernel.length();
    const Graph graph = kernel.graph();
    if (is_forward(kernel)) {
      EXPECT_EQ(complete_cosets(n, supports(graph)), forward.at(n)[0]) << kernel.name;
    } else {
      EXPECT_EQ(complete_cosets(n, reaches(graph)), inverse.at(n)[0]) << kernel.name;
    }
  }
}

TEST(RealCounts, HartleyKernelsEqualTheTable) {
  const Table table = read_table("hartley.csv");
  for (const Kernel& kernel : hartley::kernels()) {
    const Graph graph = kernel.graph();
    const gen::Counts counts = gen::count_operations(graph);
    EXPECT_EQ(counts.additions, std::stoi(table.at(kernel.length())[0])) << kernel.name;
    EXPECT_EQ(counts.multiplications, std::stoi(table.at(kernel.length())[1])) << kernel.name;
    if (is_single(kernel)) {
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
    if (!is_single(kernel)) {
      EXPECT_EQ(conversions, 0) << kernel.name;
    } else if (is_forward(kernel) && stated.contains(kernel.length())) {
      if (count_double_scaled(graph) > 0) ++conversions;
      EXPECT_EQ(conversions, stated.at(kernel.length())) << kernel.name;
      ++checked;
    }
  }
  EXPECT_EQ(checked, 3 * 7);
}

// Of a prime length, the transform of length N - 1 that its input goes through is the kernel of
// that length: its additions are there, so are its products.
TEST(RealCounts, PrimeLengthsHoldTheCoreBelow) {
  for (int n : {13, 17, 19, 23, 29, 31, 37, 41, 43, 47, 53, 59, 61}) {
    const networks::RaderRecipe* recipe =
        dft_real::rader().find(networks::parse_tree(std::to_string(n)));
    ASSERT_NE(recipe, nullptr) << n;
    EXPECT_EQ(to_string(recipe->input), dft_real::row_of(n - 1).forward) << n;
  }
}

}  // namespace
