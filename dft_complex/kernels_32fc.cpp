// The single-precision complex kernels: scalar code at 2 to 5, two samples a vector from 6 on.
#include <limits>

#include "dft_complex/dft_complex.h"
#include "gen/cost.h"
#include "gen/precision.h"
#include "networks/complex_dft.h"
#include "networks/one_sample.h"
#include "networks/two_samples.h"

namespace dft_complex {
namespace {

using gen::Graph;
using gen::Kernel;
using networks::Tree;
using networks::TwoSamples;

constexpr int kLastScalarLength = 5;

// One real value at a time. Products and their sums are double.
Graph scalar_graph(const Tree& tree, int exponent) {
  Graph graph(gen::Precision::kSingle);
  const auto input = [&](int element) { return gen::Expr{&graph, graph.input(element)}; };
  std::vector<networks::Complex<gen::Expr>> samples;
  for (int n = 0; n < tree.length; ++n) samples.push_back({input(2 * n), input(2 * n + 1)});
  networks::OneSample<gen::Expr> form(graph);
  const auto spectrum = networks::ComplexDft(form).run(tree, samples, exponent);
  graph.begin_stage({"s", "scaled"});
  for (int k = 0; k < tree.length; ++k) {
    graph.output(2 * k, graph.scale(spectrum[k].re.value));
    graph.output(2 * k + 1, graph.scale(spectrum[k].im.value));
  }
  return gen::widen_products(graph);
}

// Two samples a vector, arranged by `plan`, which is completed.
Graph vector_graph(const Tree& tree, networks::Leaves leaves, int exponent,
                   TwoSamples::Plan& plan) {
  Graph graph(gen::Precision::kSingle);
  TwoSamples form(graph, leaves, plan);
  std::vector<TwoSamples::Sample> samples;
  for (int n = 0; n < tree.length; ++n) samples.push_back(form.input(n));
  const auto spectrum = networks::ComplexDft(form).run(tree, samples, exponent);
  graph.begin_stage({"s", "scaled"});
  for (int k = 0; k < tree.length; ++k) form.output(k, spectrum[k]);
  plan = form.plan();
  return graph;
}

// The cheapest arrangement of all. One answer may open or close later choices, so the plans are
// gone through as the leaves of a tree.
Graph vector_graph(const Tree& tree, networks::Leaves leaves, int exponent) {
  TwoSamples::Plan plan, best_plan;
  double best_cost = std::numeric_limits<double>::infinity();
  do {
    const Graph graph = vector_graph(tree, leaves, exponent, plan);
    const double cost = port_cost(count_vector_operations(gen::lowered(graph, 2 * tree.length)));
    if (cost < best_cost) {
      best_cost = cost;
      best_plan = plan;
    }
    while (!plan.empty() && plan.back()) plan.pop_back();
    if (!plan.empty()) plan.back() = true;
  } while (!plan.empty());
  return vector_graph(tree, leaves, exponent, best_plan);
}

Kernel kernel(const Row& row, bool forward) {
  Kernel result;
  result.name = std::string(forward ? "zulgDFTFwd_CToC_" : "zulgDFTInv_CToC_") +
                std::to_string(row.length) + "_32fc";
  result.family = "dft_complex_32fc";
  result.recipe = row.tree;
  result.length = row.length;
  result.scale_rule = forward ? gen::ScaleRule::kForward : gen::ScaleRule::kInverse;
  result.source_type = result.destination_type = "zulg32fc";
  result.source_elements = result.destination_elements = 2 * row.length;
  result.has_twin = row.length > kLastScalarLength;
  result.order = gen::parse_order(forward ? row.forward_order : row.inverse_order);
  result.graph = [tree = networks::parse_tree(row.tree), leaves = row.leaves, forward] {
    const int exponent = forward ? 1 : -1;
    return tree.length <= kLastScalarLength ? scalar_graph(tree, exponent)
                                            : vector_graph(tree, leaves, exponent);
  };
  return result;
}

}  // namespace

std::vector<Kernel> kernels() {
  std::vector<Kernel> result;
  for (const Row& row : kRows32fc) {
    result.push_back(kernel(row, true));
    result.push_back(kernel(row, false));
  }
  return result;
}

}  // namespace dft_complex
