// One core a length, type and direction; the layouts only renumber its elements.
#include <memory>
#include <optional>

#include "dft_real/dft_real.h"
#include "dft_real/layouts.h"
#include "dft_real/sign_flips.h"
#include "gen/precision.h"
#include "gen/rewrite.h"
#include "networks/row_checks.h"

namespace dft_real {
namespace {

using gen::Expr;
using gen::Graph;
using gen::Kernel;
using gen::Precision;

std::vector<Expr> inputs(Graph& graph, int count) {
  std::vector<Expr> result;
  for (int i = 0; i < count; ++i) result.push_back({&graph, graph.input(i)});
  return result;
}

// Elements of the destination are the parts of layouts.h.
Graph forward_graph(const Row& row, Precision precision) {
  const int n = row.length;
  Graph graph(precision);
  const auto bins = forward_core(row, inputs(graph, n));
  graph.begin_stage({"s", "scaled"});
  const auto parts = networks::parts_of(bins, [n](int k) { return k == 0 || 2 * k == n; });
  for (int part = 0; part < n; ++part) {
    graph.output(part, graph.settle_sign(graph.scale(parts[part].value)));
  }
  return turn_final_subtractions(gen::fold_all_products(graph), row.sign_flips);
}

// Elements of the source are the parts of layouts.h.
Graph inverse_graph(const Row& row, Precision precision) {
  const int n = row.length;
  Graph graph(precision);
  std::vector<Expr> parts = inputs(graph, n);
  graph.begin_stage({"d", "doubled"});
  for (int part = 1; part < (n % 2 == 0 ? n - 1 : n); ++part) {
    parts[part] = gen::Number(2) * parts[part];
  }
  graph.begin_stage({"t", ""});
  const std::vector<Expr> samples = inverse_core(row, parts);
  graph.begin_stage({"s", "scaled"});
  for (int i = 0; i < n; ++i) graph.output(i, graph.scale(samples[i].value));
  return gen::fold_all_products(graph);
}

Graph core(const Row& row, bool forward, Precision precision) {
  const Graph graph = forward ? forward_graph(row, precision) : inverse_graph(row, precision);
  return precision == Precision::kSingle ? gen::widen_products(graph) : graph;
}

Graph in_layout(const Graph& core, bool forward, Layout layout, int length) {
  const auto same = [](int element) { return element; };
  const auto place = [&](int part) { return place_of(layout, length, part); };
  if (!forward) return gen::renumber_elements(core, place, same);
  Graph graph = gen::renumber_elements(core, same, place);
  for (int element : zero_places(layout, length)) {
    graph.output(element, graph.zero(graph.sample_precision()));
  }
  return graph;
}

Kernel describe(const Row& row, bool forward, Layout layout, Precision precision) {
  const auto signature = [&](Layout layout) {
    return gen::Signature{gen::Transform::kRealDft,
                          forward ? gen::Direction::kForward : gen::Direction::kInverse, layout,
                          precision, row.length};
  };
  Kernel kernel = gen::kernel_of(signature(layout));
  kernel.recipe = forward ? row.forward : row.inverse;
  (forward ? kernel.destination_elements : kernel.source_elements) = size_of(layout, row.length);
  if (layout == Layout::kPerm && (row.length == 2 || row.length % 2 == 1)) {
    kernel.same_as = name_of(signature(Layout::kPack));
  }
  return kernel;
}

}  // namespace

const Row& row_of(int length) { return kRows.at(length - 2); }

std::vector<Kernel> kernels() {
  std::vector<Kernel> result;
  const char* const table = "dft_real/rows.cpp";
  networks::check_lengths(table, kRows);
  for (const Row& row : kRows) {
    for (const char* tree : {row.forward, row.inverse}) {
      networks::tree_of_row({table, row.length}, tree, rader());
    }
  }
  for (const Precision precision : {Precision::kSingle, Precision::kDouble}) {
    for (const Row& row : kRows) {
      for (const bool forward : {true, false}) {
        // Made once, when the first of the layouts is asked for.
        const auto made = std::make_shared<std::optional<Graph>>();
        for (const Layout layout : kLayouts) {
          Kernel kernel = describe(row, forward, layout, precision);
          kernel.graph = [=] {
            if (!*made) *made = core(row, forward, precision);
            return in_layout(**made, forward, layout, row.length);
          };
          result.push_back(std::move(kernel));
        }
      }
    }
  }
  return result;
}

}  // namespace dft_real
