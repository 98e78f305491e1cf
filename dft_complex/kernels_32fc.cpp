// The single-precision complex kernels: scalar code at 2 to 5, two samples a vector from 6 on.
#include "dft_complex/dft_complex.h"
#include "dft_complex/transform_32fc.h"
#include "gen/precision.h"
#include "gen/rewrite.h"
#include "networks/one_sample.h"
#include "networks/row_checks.h"

namespace dft_complex {
namespace {

using gen::Graph;
using gen::Kernel;
using networks::ComplexDft;
using networks::Tree;
using networks::TwoSamples;
using Samples = std::vector<TwoSamples::Sample>;

// One real value at a time. Products and their sums are double.
Graph scalar_graph(const Tree& tree, Direction direction) {
  Graph graph(gen::Precision::kSingle);
  const auto input = [&](int element) { return gen::Expr{&graph, graph.input(element)}; };
  std::vector<networks::Complex<gen::Expr>> samples;
  for (int n = 0; n < tree.length; ++n) samples.push_back({input(2 * n), input(2 * n + 1)});
  networks::OneSample<gen::Expr> form(graph);
  const auto spectrum = ComplexDft(form).run(tree, samples, exponent(direction));
  graph.begin_stage({"s", "scaled"});
  for (int k = 0; k < tree.length; ++k) {
    graph.output(2 * k, graph.scale(spectrum[k].re.value));
    graph.output(2 * k + 1, graph.scale(spectrum[k].im.value));
  }
  return gen::widen_products(graph);
}

// The answers that a row's text gives.
TwoSamples::Plan parse_plan(const networks::RowPlace& place, const std::string& text) {
  TwoSamples::Plan plan;
  for (const char answer : text) {
    if (answer != '0' && answer != '1') place.fail("not a plan: " + text);
    plan.push_back(answer == '1');
  }
  return plan;
}

}  // namespace

Graph arranged_graph(const Row32fc& row, Direction direction, TwoSamples::Plan& plan) {
  Graph graph(gen::Precision::kSingle);
  TwoSamples form(graph, row.leaves, plan);
  Samples samples;
  for (int n = 0; n < row.length; ++n) samples.push_back(form.input(n));
  const Samples spectrum =
      transform_32fc(form, networks::parse_tree(row.tree), samples, exponent(direction));
  graph.begin_stage({"s", "scaled"});
  for (int k = 0; k < row.length; ++k) form.output(k, spectrum[k]);
  plan = form.plan();
  return gen::fold_products(graph);
}

std::vector<Kernel> kernels_32fc() {
  std::vector<Kernel> result;
  const char* const table = "dft_complex/rows_32fc.cpp";
  networks::check_lengths(table, kRows32fc);
  for (const Row32fc& row : kRows32fc) {
    const networks::RowPlace place = {table, row.length};
    const Tree tree = networks::tree_of_row(place, row.tree, rader_32fc());
    for (const Direction direction : kDirections) {
      Kernel kernel = describe(row.length, gen::Precision::kSingle, row.tree, direction);
      const bool scalar = row.length <= kLastScalarLength;
      kernel.bodies = scalar ? gen::Bodies::kOne : gen::Bodies::kTwin;
      const bool forward = direction == Direction::kForward;
      TwoSamples::Plan plan = parse_plan(place, forward ? row.forward_plan : row.inverse_plan);
      kernel.graph = [row, tree, scalar, direction, plan]() mutable {
        return scalar ? scalar_graph(tree, direction) : arranged_graph(row, direction, plan);
      };
      result.push_back(std::move(kernel));
    }
  }
  return result;
}

}  // namespace dft_complex
