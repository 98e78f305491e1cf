// The double-precision complex kernels: one sample a vector, whose two lanes are two real sequences
// up to the last combination.
#include "dft_complex/dft_complex.h"
#include "gen/rewrite.h"
#include "networks/complex_leaves.h"
#include "networks/row_checks.h"

namespace dft_complex {
namespace {

using gen::Graph;
using gen::Kernel;
using networks::SamplePair;
using networks::Tree;

constexpr int kLastLengthWithoutTwin = 4;

Graph graph_of(const Tree& tree, Direction direction) {
  const int n = tree.length;
  Graph graph(gen::Precision::kDouble);
  std::vector<gen::Expr> samples;
  for (int i = 0; i < n; ++i) {
    const gen::Value sample =
        graph.lanes({{graph.input(2 * i).node, 0}, {graph.input(2 * i + 1).node, 0}});
    samples.push_back({&graph, sample});
  }
  graph.begin_stage({"a", "real transform of both lanes"});
  networks::Bins<SamplePair> bins;
  for (const auto& bin : networks::RealDft<gen::Expr>(rader_64fc()).real(tree, samples)) {
    bins.push_back({{bin.re}, {bin.im}});
  }
  graph.begin_stage({"b", "lanes joined"});
  const std::vector<SamplePair> spectrum = join_bins(bins, n);
  graph.begin_stage({"s", "scaled"});
  for (int k = 0; k < n; ++k) {
    // The conjugate root exchanges the outputs.
    const int source = direction == Direction::kForward ? k : (n - k) % n;
    const gen::Value scaled = graph.scale(spectrum[source].v.value);
    graph.output(2 * k, scaled, 0);
    graph.output(2 * k + 1, scaled, 1);
  }
  return gen::fold_products(graph);
}

}  // namespace

std::vector<Kernel> kernels_64fc() {
  std::vector<Kernel> result;
  const char* const table = "dft_complex/rows_64fc.cpp";
  networks::check_lengths(table, kRows64fc);
  for (const Row64fc& row : kRows64fc) {
    const Tree tree = networks::tree_of_row({table, row.length}, row.tree, rader_64fc());
    for (const Direction direction : kDirections) {
      Kernel kernel = describe(row.length, gen::Precision::kDouble, row.tree, direction);
      kernel.bodies =
          row.length <= kLastLengthWithoutTwin ? gen::Bodies::kBothInside : gen::Bodies::kTwin;
      kernel.graph = [tree, direction] { return graph_of(tree, direction); };
      result.push_back(std::move(kernel));
    }
  }
  return result;
}

}  // namespace dft_complex
