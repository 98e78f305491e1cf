// Parts of RealDft that need a network as a graph: to fold its products, or to mirror it.
#pragma once

#include <vector>

#include "gen/rewrite.h"
#include "networks/real_dft.h"

namespace networks {

// Carries out a graph of additions, subtractions and products on other values; the outputs'
// elements count from 0.
template <class V>
std::vector<V> run_graph(const gen::Graph& graph, const std::vector<V>& inputs) {
  std::vector<V> values(graph.size());
  const std::vector<bool> live = graph.live_nodes();
  for (gen::NodeId id = 0; id < graph.size(); ++id) {
    const gen::Node& node = graph[id];
    if (!live[id]) continue;
    switch (node.op) {
      case gen::Op::kInput:
        values[id] = inputs[node.element];
        break;
      case gen::Op::kAdd:
        values[id] = values[node.a] + values[node.b];
        break;
      case gen::Op::kSub:
        values[id] = values[node.a] - values[node.b];
        break;
      case gen::Op::kFlipSigns:
        values[id] = -values[node.a];
        break;
      default:
        values[id] = graph.factor(node, 0) * values[node.a];
    }
  }
  std::vector<V> outputs(graph.outputs().size());
  for (const gen::Output& out : graph.outputs()) outputs[out.element] = values[out.from.node];
  return outputs;
}

template <class V>
Bins<V> RealDft<V>::with_products_folded(const Tree& tree, const std::vector<V>& x, int e) {
  const int n = tree.length;
  gen::Graph graph(gen::Precision::kDouble);
  std::vector<gen::Expr> inputs;
  for (int i = 0; i < n; ++i) inputs.push_back({&graph, graph.input(i)});
  const auto is_real = [n](int k) { return k == 0 || 2 * k == n; };
  const auto parts = parts_of(RealDft<gen::Expr>(table_, style_).real(tree, inputs, e), is_real);
  for (std::size_t i = 0; i < parts.size(); ++i) {
    graph.output(static_cast<int>(i), parts[i].value);
  }
  const std::vector<V> values = run_graph(gen::fold_all_products(graph), x);
  Bins<V> bins(n / 2 + 1);
  for (int k = 0, i = 0; k <= n / 2; ++k) {
    bins[k].re = values[i++];
    if (!is_real(k)) bins[k].im = values[i++];
  }
  return bins;
}

template <class V>
std::vector<Complex<V>> RealDft<V>::mirrored_complex(const Tree& tree, const std::vector<C>& z) {
  const auto parts = [](const auto& samples) {
    std::vector<decltype(samples[0].re)> result;
    for (const auto& sample : samples) result.insert(result.end(), {sample.re, sample.im});
    return result;
  };
  const auto joined = [](const auto& parts) {
    std::vector<Complex<std::decay_t<decltype(parts[0])>>> samples;
    for (std::size_t i = 0; i < parts.size(); i += 2) samples.push_back({parts[i], parts[i + 1]});
    return samples;
  };
  const auto make = [&](const std::vector<gen::Expr>& in) {
    return parts(RealDft<gen::Expr>(table_, style_.mirrored()).complex(tree, joined(in), -1));
  };
  return joined(run_mirrored(2 * tree.length, make, parts(z)));
}

}  // namespace networks
