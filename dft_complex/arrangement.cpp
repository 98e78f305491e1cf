#include "dft_complex/arrangement.h"

#include "gen/cost.h"
#include "gen/count.h"

namespace dft_complex {
namespace {

using gen::Graph;
using networks::Tree;
using networks::TwoSamples;

class Search {
 public:
  Search(const Row32fc& row, Direction direction) : row_(row), direction_(direction) {}

  TwoSamples::Plan cheapest() {
    TwoSamples::Plan plan;
    const Graph first = arranged_graph(row_, direction_, plan);
    carried_ = count_carried_operations(first);
    lowest_ = cost(first);
    best_plan_ = plan;
    try_first_plans(plan);
    turn_single_choices();
    return best_plan_;
  }

 private:
  static constexpr int kTriedInFull = 64;

  double cost(const Graph& graph) const {
    return port_cost(count_vector_operations(gen::lowered(graph, 2 * row_.length)));
  }

  // Whether the plan, which is completed, is better than all before. The count of a prime length
  // includes what idle lanes carry, which an arrangement must not change.
  bool try_plan(TwoSamples::Plan& plan) {
    const Graph graph = arranged_graph(row_, direction_, plan);
    const Tree::Kind kind = networks::parse_tree(row_.tree).kind;
    const bool is_prime = kind == Tree::Kind::kRader || kind == Tree::Kind::kChirp;
    if (is_prime && count_carried_operations(graph) != carried_) return false;
    const double graph_cost = cost(graph);
    if (graph_cost >= lowest_) return false;
    lowest_ = graph_cost;
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
  gen::Counts carried_;
  double lowest_ = 0;
  TwoSamples::Plan best_plan_;
};

}  // namespace

TwoSamples::Plan cheapest_arrangement(const Row32fc& row, Direction direction) {
  return Search(row, direction).cheapest();
}

}  // namespace dft_complex
