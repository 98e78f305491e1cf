#include "dft_real/dft_real.h"
#include "gen/precision.h"
#include "gen/rewrite.h"
#include "hartley/hartley.h"
#include "networks/row_checks.h"

namespace hartley {
namespace {

using gen::Expr;
using gen::Graph;
using gen::Kernel;
using gen::Precision;

std::vector<Expr> by_output_butterflies(const std::vector<Expr>& x) {
  const int n = static_cast<int>(x.size());
  const auto bins = dft_real::forward_core(dft_real::row_of(n), x);
  std::vector<Expr> h(n);
  for (int k = 0; k <= n / 2; ++k) {
    h[k] = bins[k].re;
    if (k == 0 || 2 * k == n) continue;
    h[k] = bins[k].re - bins[k].im;
    h[n - k] = bins[k].re + bins[k].im;
  }
  return h;
}

std::vector<Expr> by_input_butterflies(const std::vector<Expr>& x) {
  const int n = static_cast<int>(x.size());
  std::vector<Expr> parts = {x[0]};
  for (int j = 1; 2 * j < n; ++j) {
    parts.push_back(x[j] + x[n - j]);
    parts.push_back(-(x[j] - x[n - j]));
  }
  if (n % 2 == 0) parts.push_back(x[n / 2]);
  return dft_real::inverse_core(dft_real::row_of(n), parts);
}

Graph graph_of(const Row& row, Precision precision) {
  Graph graph(precision);
  std::vector<Expr> x;
  for (int i = 0; i < row.length; ++i) x.push_back({&graph, graph.input(i)});
  const std::vector<Expr> h =
      row.form == Form::kOutputButterflies ? by_output_butterflies(x) : by_input_butterflies(x);
  graph.begin_stage({"s", "scaled"});
  for (int i = 0; i < row.length; ++i) graph.output(i, graph.scale(h[i].value));
  const Graph folded = gen::fold_all_products(graph);
  return precision == Precision::kSingle ? gen::widen_products(folded) : folded;
}

}  // namespace

std::vector<Kernel> kernels() {
  std::vector<Kernel> result;
  networks::check_lengths("hartley/rows.cpp", kRows);
  for (const Precision precision : {Precision::kSingle, Precision::kDouble}) {
    for (const Row& row : kRows) {
      const dft_real::Row& core = dft_real::row_of(row.length);
      const bool output_form = row.form == Form::kOutputButterflies;
      Kernel kernel = gen::kernel_of({gen::Transform::kHartley, gen::Direction::kSelfInverse,
                                      gen::Layout::kNone, precision, row.length});
      kernel.recipe = output_form
                          ? "butterflies behind " + std::string(core.forward)
                          : "butterflies before the inverse of " + std::string(core.inverse);
      kernel.graph = [row, precision] { return graph_of(row, precision); };
      result.push_back(std::move(kernel));
    }
  }
  return result;
}

}  // namespace hartley
