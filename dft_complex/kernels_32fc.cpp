// The single-precision complex kernels: scalar code at 2 to 5, two samples a vector from 6 on.
#include "dft_complex/dft_complex.h"
#include "dft_complex/transform_32fc.h"
#include "gen/cost.h"
#include "gen/count.h"
#include "gen/precision.h"
#include "gen/rewrite.h"
#include "networks/one_sample.h"

namespace dft_complex {
namespace {

using gen::Graph;
using gen::Kernel;
using networks::ComplexDft;
using networks::Tree;
using networks::TwoSamples;
using Samples = std::vector<TwoSamples::Sample>;

constexpr int kLastScalarLength = 5;

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

// Two samples a vector, arranged by `plan`, which is completed.
Graph vector_graph(const Row32fc& row, Direction direction, TwoSamples::Plan& plan) {
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

// Looks for the cheapest arrangement of a kernel.
class Arrangement {
 public:
  Arrangement(const Row32fc& row, Direction direction) : row_(row), direction_(direction) {}

  Graph cheapest() {
    TwoSamples::Plan plan;
    best_ = vector_graph(row_, direction_, plan);
    carried_ = count_carried_operations(best_);
    lowest_ = cost(best_);
    best_plan_ = plan;
    try_first_plans(plan);
    turn_single_choices();
    return std::move(best_);
  }

 private:
  static constexpr int kTriedInFull = 64;

  double cost(const Graph& graph) const {
    return port_cost(count_vector_operations(gen::lowered(graph, 2 * row_.length)));
  }

  // Whether the plan, which is completed, is better than all before. The count of a prime length
  // includes what idle lanes carry, which an arrangement must not change.
  bool try_plan(TwoSamples::Plan& plan) {
    Graph graph = vector_graph(row_, direction_, plan);
    const Tree::Kind kind = networks::parse_tree(row_.tree).kind;
    const bool is_prime = kind == Tree::Kind::kRader || kind == Tree::Kind::kChirp;
    if (is_prime && count_carried_operations(graph) != carried_) return false;
    const double graph_cost = cost(graph);
    if (graph_cost >= lowest_) return false;
    lowest_ = graph_cost;
    best_ = std::move(graph);
    best_plan_ = plan;
    return true;
  }

  // One answer may open or close later choices, so the plans are the leaves of a tree.
  void try_first_plans(TwoSamples::Plan plan) {
    for (int tried = 0; tried < kTriedInFull; ++tried) {
      while (!plan.empty() && plan.back()) plan.pop_back();
      if (plan.empty()) return;
      plan.back() = true;
      try_plan(plan);
    }
  }

  // Turns round one choice after the other for as long as that helps.
  void turn_single_choices() {
    for (std::size_t i = 0; i < best_plan_.size(); ++i) {
      TwoSamples::Plan plan = best_plan_;
      plan[i] = !plan[i];
      if (try_plan(plan)) i = 0;
    }
  }

  const Row32fc& row_;
  const Direction direction_;
  Graph best_{gen::Precision::kSingle};
  gen::Counts carried_;
  double lowest_ = 0;
  TwoSamples::Plan best_plan_;
};

}  // namespace

std::vector<Kernel> kernels_32fc() {
  std::vector<Kernel> result;
  for (const Row32fc& row : kRows32fc) {
    for (const Direction direction : {Direction::kForward, Direction::kInverse}) {
      const bool forward = direction == Direction::kForward;
      Kernel kernel = describe(row.length, "32fc", row.tree, direction,
                               forward ? row.forward_order : row.inverse_order);
      const bool scalar = row.length <= kLastScalarLength;
      kernel.bodies = scalar ? gen::Bodies::kOne : gen::Bodies::kTwin;
      kernel.graph = [row, scalar, direction] {
        return scalar ? scalar_graph(networks::parse_tree(row.tree), direction)
                      : Arrangement(row, direction).cheapest();
      };
      result.push_back(std::move(kernel));
    }
  }
  return result;
}

}  // namespace dft_complex
