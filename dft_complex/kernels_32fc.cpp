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

// Two samples a vector, arranged by the choices of `plan`; their number goes to `choices`.
Graph vector_graph(const Tree& tree, int exponent, unsigned plan, int& choices) {
  Graph graph(gen::Precision::kSingle);
  networks::TwoSamples form(graph, plan);
  std::vector<networks::TwoSamples::Sample> samples;
  for (int n = 0; n < tree.length; ++n) samples.push_back(form.input(n));
  const auto spectrum = networks::ComplexDft(form).run(tree, samples, exponent);
  graph.begin_stage({"s", "scaled"});
  for (int k = 0; k < tree.length; ++k) form.output(k, spectrum[k]);
  choices = form.choices();
  return graph;
}

// The cheapest of all plans.
Graph vector_graph(const Tree& tree, int exponent) {
  int choices = 0;
  vector_graph(tree, exponent, 0, choices);
  unsigned best_plan = 0;
  double best_cost = std::numeric_limits<double>::infinity();
  for (unsigned plan = 0; plan < 1u << choices; ++plan) {
    const Graph graph = vector_graph(tree, exponent, plan, choices);
    const double cost = port_cost(count_vector_operations(gen::lowered(graph, 2 * tree.length)));
    if (cost < best_cost) {
      best_cost = cost;
      best_plan = plan;
    }
  }
  return vector_graph(tree, exponent, best_plan, choices);
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
  result.order = gen::parse_order(row.order);
  result.graph = [tree = networks::parse_tree(row.tree), forward] {
    const int exponent = forward ? 1 : -1;
    return tree.length <= kLastScalarLength ? scalar_graph(tree, exponent)
                                            : vector_graph(tree, exponent);
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
