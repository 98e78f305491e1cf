// The complex kernels of which every rounding is laid down: by the tree of their length, down to
// leaves of 2, 3, 4, 5, 7 and 11.
#include <gtest/gtest.h>

#include "dft_complex/dft_complex.h"
#include "tests/graph_runs.h"
#include "tests/scalar_model.h"
#include "tests/tables.h"

namespace {

using networks::Tree;
using namespace scalar_model;

bool is_laid_down(const Tree& tree) {
  bool all =
      tree.kind != Tree::Kind::kLeaf || tree.length <= 5 || tree.length == 7 || tree.length == 11;
  for (const Tree& part : tree.parts) all = all && is_laid_down(part);
  return all;
}

// Complex samples in single precision; products and their sums are double at 3 and 5.
template <class R>
std::vector<double> single_by_hand(const Tree& tree, const std::vector<double>& source, int e) {
  std::vector<Sample<R>> x;
  for (std::size_t i = 0; i < source.size(); i += 2) x.push_back({{source[i]}, {source[i + 1]}});
  std::vector<double> y;
  for (const Sample<R>& bin : whole(tree, x, e, kNobody)) y.insert(y.end(), {bin.re.v, bin.im.v});
  return y;
}

// Real and imaginary parts as two real sequences.
std::vector<double> double_by_hand(const Tree& tree, const std::vector<double>& source, int e) {
  const int n = tree.length;
  std::vector<Real<double>> parts[2];
  for (int i = 0; i < 2 * n; ++i) parts[i % 2].push_back({source[i]});
  const Form form = n == 10 || n == 50 || n == 60 ? Form::kShortFive : Form::kFirstSampleFirst;
  const auto re = halves(tree, parts[0], 1, form, kNobody);
  const auto im = halves(tree, parts[1], 1, form, kNobody);
  Sums<Sample<Real<double>>> sums;
  for (int k = 0; 2 * k <= n; ++k) {
    sums.p.push_back({re.p[k], im.p[k]});
    sums.q.push_back({re.q[k], im.q[k]});
  }
  std::vector<double> y;
  for (int k = 0; k < n; ++k) {
    const auto bin = join(sums, e * k, n);
    y.insert(y.end(), {bin.re.v, bin.im.v});
  }
  return y;
}

TEST(ComplexRoundings, AreThoseLaidDown) {
  const Table table = read_table("complex.csv");
  int checked = 0;
  for (const gen::Kernel& kernel : dft_complex::kernels()) {
    const int n = kernel.length(), e = kernel.name.starts_with("zulgDFTFwd") ? 1 : -1;
    const auto row = table.find(n);
    const bool single = kernel.name.ends_with("_32fc"), direct = n == 7 || n == 11;
    if (row == table.end() && (single || !direct)) continue;
    // 35 has a block of 7 in Rader's form.
    const Tree tree =
        networks::parse_tree(direct ? std::to_string(n) : row->second[single ? 0 : 3]);
    if (!is_laid_down(tree) || (n == 35 && !single)) continue;
    const GraphRuns graph(kernel);
    const auto by_hand = !single            ? double_by_hand
                         : n == 3 || n == 5 ? single_by_hand<Real<float, double>>
                                            : single_by_hand<Real<float>>;
    for (const unsigned seed : {1, 2, 3}) {
      const std::vector<double> x = make_input(graph.shape(), harness::Data::kUniform, seed);
      std::vector<double> y = by_hand(tree, x, e);
      EXPECT_EQ(graph.run(x, ZULG_SCALE_NONE), y) << kernel.name;
      // The factor comes last.
      const double s = 1 / std::sqrt(n);
      for (double& v : y) v = single ? static_cast<float>(static_cast<float>(s) * v) : s * v;
      EXPECT_EQ(graph.run(x, ZULG_SCALE_BY_SQRT_N), y) << kernel.name;
    }
    ++checked;
  }
  EXPECT_EQ(checked, 2 * (38 + 39));
}

}  // namespace
