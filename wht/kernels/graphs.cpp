// The data flow of the kernels and of their passes.
#include <algorithm>

#include "gen/expr.h"
#include "networks/walsh_hadamard.h"
#include "wht/kernels/kernels.h"

namespace wht {
namespace {

using gen::Expr;
using gen::Graph;
using gen::Lane;
using gen::Precision;
using networks::walsh_hadamard;
using Vectors = std::vector<Expr>;

// Element `first` of the source and the ones behind it, up to half a vector, as lanes.
void append_half(Graph& graph, int first, std::vector<Lane>& picks) {
  const int half = lanes_of(graph.sample_precision(), 128) / 2;
  for (int i = 0; i < half; ++i) picks.push_back({graph.input(first + i).node, 0});
}

// Two halves of the source, side by side.
gen::Value halves(Graph& graph, int low, int high) {
  std::vector<Lane> picks;
  append_half(graph, low, picks);
  append_half(graph, high, picks);
  return graph.lanes(picks);
}

// As many vectors as one has lanes, transposed: vector c holds lane c of all.
Vectors transposed(Graph& graph, const Vectors& vectors) {
  Vectors result;
  for (int c = 0; c < static_cast<int>(vectors.size()); ++c) {
    std::vector<Lane> picks;
    for (const Expr& vector : vectors) picks.push_back({vector.value.node, c});
    result.push_back({&graph, graph.lanes(picks)});
  }
  return result;
}

// The same out of the source, from element `first` on. Four lanes take two steps, whose first,
// which moves halves, is the loads'.
Vectors load_transposed(Graph& graph, int first) {
  if (graph.sample_precision() == Precision::kDouble) {
    return {{&graph, halves(graph, first, first + 2)},
            {&graph, halves(graph, first + 1, first + 3)}};
  }
  Vectors result;
  for (const int half : {0, 2}) {
    const gen::Value upper = halves(graph, first + half, first + 4 + half);
    const gen::Value lower = halves(graph, first + 8 + half, first + 12 + half);
    for (const int lane : {0, 1}) {
      result.push_back({&graph, graph.lanes({{upper.node, lane},
                                             {upper.node, lane + 2},
                                             {lower.node, lane},
                                             {lower.node, lane + 2}})});
    }
  }
  return result;
}

// `count` lanes of a vector, from `first` on.
struct Part {
  Expr vector;
  int first, count, step = 1;
};

Expr joined(Graph& graph, const std::vector<Part>& parts) {
  std::vector<Lane> picks;
  for (const Part& part : parts) {
    for (int i = 0; i < part.count; ++i) {
      picks.push_back({part.vector.value.node, part.first + i * part.step});
    }
  }
  return {&graph, graph.lanes(picks)};
}

// Splits neighbouring vectors of two halves into even lanes and odd ones, of which each half keeps
// its own. Done once for every bit of an index to lanes of a half and one more, all is in place
// again; and each bit has once been the one between the two vectors.
void split_pairs(Graph& graph, Vectors& vectors, int half) {
  for (std::size_t i = 0; i < vectors.size(); i += 2) {
    const Expr x = vectors[i], y = vectors[i + 1];
    for (const int odd : {0, 1}) {
      const auto lanes_of_half = [&](const Expr& vector, int first) {
        return Part{vector, first + odd, half / 2, 2};
      };
      vectors[i + odd] = joined(graph, {lanes_of_half(x, 0), lanes_of_half(y, 0),
                                        lanes_of_half(x, half), lanes_of_half(y, half)});
    }
  }
}

// transform_block() in vectors of two halves: those of the block go through it side by side, until
// the last stage, which is the one between them.
Vectors transform_halves(Graph& graph, int first, int order) {
  const int half = lanes_of(graph.sample_precision(), 128), distance = 1 << (order - 1);
  const auto load = [&](int element) {
    std::vector<Lane> picks;
    for (int i = 0; i < half; ++i) picks.push_back({graph.input(element + i).node, 0});
    return Part{{&graph, graph.lanes(picks)}, 0, half};
  };
  Vectors vectors;
  for (int i = first; i < first + distance; i += half) {
    vectors.push_back(joined(graph, {load(i), load(i + distance)}));
  }
  graph.begin_stage({"a", "stages within halves of vectors"});
  for (int lanes = half; lanes > 1; lanes /= 2) {
    split_pairs(graph, vectors, half);
    for (std::size_t i = 0; i < vectors.size(); i += 2) {
      const Vectors pair = walsh_hadamard(Vectors{vectors[i], vectors[i + 1]});
      std::copy(pair.begin(), pair.end(), vectors.begin() + i);
    }
  }
  split_pairs(graph, vectors, half);
  graph.begin_stage({"b", "stages between vectors"});
  vectors = walsh_hadamard(vectors);
  graph.begin_stage({"c", "the stage between halves"});
  Vectors result(vectors.size());
  for (std::size_t i = 0; i < vectors.size(); i += 2) {
    Vectors pair;
    for (const int from : {0, half}) {
      pair.push_back(joined(graph, {{vectors[i], from, half}, {vectors[i + 1], from, half}}));
    }
    pair = walsh_hadamard(pair);
    result[i / 2] = pair[0];
    result[(i + vectors.size()) / 2] = pair[1];
  }
  return result;
}

// All stages over the 2^order samples of the source from `first` on. The stages of the low bits
// pair lanes: they run on groups of vectors that are transposed for them.
Vectors transform_block(Graph& graph, int first, int order, int vector_bits) {
  if (vector_bits > 128) return transform_halves(graph, first, order);
  const int lanes = lanes_of(graph.sample_precision(), vector_bits);
  Vectors vectors;
  graph.begin_stage({"a", "stages within vectors, which are transposed for them"});
  for (int group = 0; group < 1 << order; group += lanes * lanes) {
    const Vectors columns = walsh_hadamard(load_transposed(graph, first + group));
    for (const Expr& vector : transposed(graph, columns)) vectors.push_back(vector);
  }
  graph.begin_stage({"b", "stages between vectors"});
  return walsh_hadamard(vectors);
}

// Stages between the rows of a matrix that `area` holds row after row.
void transform_columns(Vectors& area, int begin, int rows, int vectors_in_row) {
  for (int column = 0; column < vectors_in_row; ++column) {
    Vectors vectors;
    for (int r = 0; r < rows; ++r) vectors.push_back(area[begin + r * vectors_in_row + column]);
    vectors = walsh_hadamard(vectors);
    for (int r = 0; r < rows; ++r) area[begin + r * vectors_in_row + column] = vectors[r];
  }
}

// To the elements of the destination.
void store_scaled(Graph& graph, const Vectors& vectors) {
  graph.begin_stage({"s", "scaled"});
  int element = 0;
  for (const Expr& vector : vectors) {
    const gen::Value scaled = graph.scale(vector.value);
    const int lanes = graph[scaled.node].lane_count;
    for (int lane = 0; lane < lanes; ++lane) graph.output(element++, scaled, lane);
  }
}

// To an accessor of whole vectors.
void output_vectors(Graph& graph, const Vectors& vectors) {
  int row = 0;
  for (const Expr& vector : vectors) graph.output(row++, vector.value);
}

Graph scalar_graph(Precision precision, int order) {
  Graph graph(precision);
  Vectors samples;
  for (int i = 0; i < 1 << order; ++i) samples.push_back({&graph, graph.input(i)});
  graph.begin_stage({"a", "all stages"});
  store_scaled(graph, walsh_hadamard(samples));
  return graph;
}

Graph long_graph(Precision precision, const Plan& plan, int vector_bits) {
  Graph graph(precision);
  const int lanes = lanes_of(precision, vector_bits);
  Vectors area;
  for (int first = 0; first < plan.length(); first += plan.block()) {
    for (const Expr& vector : transform_block(graph, first, plan.row_order, vector_bits)) {
      area.push_back(vector);
    }
  }
  for (int first = 0; plan.segment_rows && first < plan.length(); first += plan.segment()) {
    transform_columns(area, first / lanes, plan.segment_rows, plan.block() / lanes);
  }
  transform_columns(area, 0, plan.rows, plan.columns() / lanes);
  store_scaled(graph, area);
  return graph;
}

}  // namespace

bool is_scalar(Precision precision, int order) {
  return order <= (precision == Precision::kSingle ? 3 : 2);
}

int lanes_of(Precision precision, int vector_bits) {
  return vector_bits / (precision == Precision::kSingle ? 32 : 64);
}

Graph row_graph(Precision precision, int row_order, int vector_bits) {
  Graph graph(precision);
  output_vectors(graph, transform_block(graph, 0, row_order, vector_bits));
  return graph;
}

Graph column_graph(Precision precision, int rows, int vector_bits) {
  Graph graph(precision);
  Vectors vectors;
  for (int r = 0; r < rows; ++r) {
    vectors.push_back({&graph, graph.fetch(0, r, lanes_of(precision, vector_bits))});
  }
  graph.begin_stage({"b", "stages between rows"});
  output_vectors(graph, walsh_hadamard(vectors));
  return graph;
}

Graph kernel_graph(Precision precision, int order, int vector_bits) {
  if (order > kLastShortOrder) {
    const bool single = precision == Precision::kSingle;
    return long_graph(precision, single ? plan_of<float>(order) : plan_of<double>(order),
                      vector_bits);
  }
  if (is_scalar(precision, order)) return scalar_graph(precision, order);
  Graph graph(precision);
  store_scaled(graph, transform_block(graph, 0, order, vector_bits));
  return graph;
}

}  // namespace wht
