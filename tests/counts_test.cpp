// The arithmetic of the complex and the Walsh-Hadamard kernels against the tables of wanted counts.
#include <gtest/gtest.h>

#include "dft_complex/dft_complex.h"
#include "gen/count.h"
#include "tests/tables.h"
#include "wht/kernels/kernels.h"

namespace {

// What a row of these tables says of the arithmetic of a kernel.
gen::Counts wanted_of(const std::vector<std::string>& row, std::size_t cell) {
  return {std::stoi(row[cell]), std::stoi(row[cell + 1])};
}

TEST(Counts, EqualTheTables) {
  const Table composites = read_table("complex.csv"), primes = read_table("complex_primes.csv");
  for (const gen::Kernel& kernel : dft_complex::kernels()) {
    const auto row = composites.find(kernel.length());
    const bool is_prime = row == composites.end();
    if (is_prime && kernel.is_single()) continue;
    gen::Counts wanted = is_prime ? wanted_of(primes.at(kernel.length()), 6)
                                  : wanted_of(row->second, kernel.is_single() ? 1 : 4);
    // Conjugate twiddle factors make more products equal in sign.
    const bool shares = kernel.length() == 24 || kernel.length() == 48;
    if (kernel.name.starts_with("zulgDFTInv") && kernel.is_single() && shares) {
      wanted.multiplications -= 4;
    }
    EXPECT_EQ(gen::count_operations(kernel.graph()), wanted) << kernel.name;
  }
}

// Prime lengths of two samples a vector are counted with what idle lanes carry. How many zeros are
// added in the lane beside x[0] is the one thing that the arrangement settles.
TEST(Counts, OfPrimeLengthsIncludeIdleLanes) {
  const Table primes = read_table("complex_primes.csv");
  for (const gen::Kernel& kernel : dft_complex::kernels()) {
    const auto row = primes.find(kernel.length());
    if (!kernel.is_single() || row == primes.end()) continue;
    const gen::Counts counts = gen::count_carried_operations(kernel.graph());
    const auto [additions, multiplications] = wanted_of(row->second, 2);
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

// In single precision, only lengths 3 and 5 hold double precision.
TEST(Counts, OtherPrecisionStandsInTheScalarKernelsAlone) {
  for (const gen::Kernel& kernel : dft_complex::kernels()) {
    if (kernel.is_single() && (kernel.length() == 3 || kernel.length() == 5)) continue;
    const gen::Graph graph = kernel.graph();
    for (gen::NodeId id = 0; id < graph.size(); ++id) {
      ASSERT_EQ(graph[id].precision, kernel.precision) << kernel.name;
    }
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
