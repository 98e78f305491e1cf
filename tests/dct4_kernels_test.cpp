// The arithmetic of the DCT-IV's kernels against the table.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>

#include "dct4/kernels/kernels.h"
#include "gen/count.h"

namespace {

using dct4::Kind;
using dct4::Row;

// Additions, multiplications; second stages with their rotations.
const std::map<std::string, gen::Counts> kCounts = {
    {"first_stage_2", {0, 0}},       {"first_stage_4", {6, 2}},
    {"first_stage_8", {24, 12}},     {"first_stage_16", {68, 32}},
    {"first_stage_32", {184, 96}},   {"first_stage_64", {448, 224}},
    {"skew_sum_2", {6, 4}},          {"skew_sum_4", {22, 12}},
    {"skew_sum_8", {66, 32}},        {"skew_sum_16", {176, 96}},
    {"skew_sum_32", {440, 224}},     {"second_stage_1", {2, 4}},
    {"second_stage_2", {10, 10}},    {"second_stage_4", {32, 28}},
    {"second_stage_8", {88, 72}},    {"second_stage_16", {224, 176}},
    {"second_stage_32", {512, 352}}, {"base_case_2", {2, 4}},
    {"base_case_4", {12, 8}},        {"base_case_8", {32, 24}},
    {"base_case_16", {88, 64}},      {"base_case_32", {216, 144}},
};

// Statements of each kind, whether or not one repeats another.
int statements(const gen::Graph& graph, std::initializer_list<gen::Op> ops) {
  const std::vector<bool> live = graph.live_nodes();
  int count = 0;
  for (gen::NodeId id = 0; id < graph.size(); ++id) {
    count += live[id] && std::find(ops.begin(), ops.end(), graph[id].op) != ops.end();
  }
  return count;
}

TEST(Dct4Kernels, HaveTheArithmeticOfTheTable) {
  ASSERT_EQ(dct4::kRows.size(), kCounts.size());
  for (const Row& row : dct4::kRows) {
    for (const auto precision : {gen::Precision::kSingle, gen::Precision::kDouble}) {
      const gen::Graph graph = dct4::graph(row, precision);
      const gen::Counts wanted = kCounts.at(name(row));
      EXPECT_EQ(gen::count_operations(graph), wanted) << name(row);
      // T(2) has its negation, as a subtraction from zero; else there is none.
      const int negations = row.kind == Kind::kFirstStage && row.size == 2;
      using enum gen::Op;
      EXPECT_EQ(statements(graph, {kAdd, kSub}), wanted.additions + negations) << name(row);
      EXPECT_EQ(statements(graph, {kMul, kProduct}), wanted.multiplications) << name(row);
      EXPECT_EQ(statements(graph, {kFlipSigns}), 0) << name(row);
    }
  }
}

// A body reaches memory by its accessors alone, and products of two values count once.
TEST(Bodies, CallTheirAccessors) {
  gen::Body body;
  body.name = "turn";
  body.accessors = {"x", "w"};
  body.graph = [] {
    gen::Graph graph(gen::Precision::kDouble);
    const gen::Value x = graph.fetch(0, 3, 2), w = graph.fetch(1, 7, 2);
    const gen::Value product = graph.product(x, -w), again = graph.product(w, x);
    EXPECT_EQ(product, -again);
    EXPECT_EQ(graph.fetch(0, 3, 2), x);
    EXPECT_NE(graph.fetch(1, 3, 2), x);
    graph.output(5, graph.add(again, x));
    return graph;
  };
  EXPECT_EQ(gen::count_operations(body.graph()), (gen::Counts{1, 1}));
  const std::string text = gen::emit_body_function(body);
  for (const char* part :
       {"void turn(const auto& x, const auto& w, const auto& y)", "const D2 x3 = x.load(3);",
        "const D2 w7 = w.load(7);", "const D2 t0 = x3 * w7;", "y.store(5, t1);"}) {
    EXPECT_NE(text.find(part), std::string::npos) << part << " in " << text;
  }
}

// How often each constant is multiplied by, with angles in parts of a turn.
std::map<std::string, int> constants(Kind kind, int size) {
  std::map<std::string, int> result;
  for (const Row& row : dct4::kRows) {
    if (row.kind != kind || row.size != size) continue;
    const gen::Graph graph = dct4::graph(row, gen::Precision::kDouble);
    for (gen::NodeId id = 0; id < graph.size(); ++id) {
      if (graph[id].op == gen::Op::kMul) ++result[graph.factor(graph[id], 0).name()];
    }
  }
  return result;
}

TEST(Dct4Kernels, MultiplyByTheStatedConstants) {
  const std::map<std::string, int> of_16 = {{"sqrt 1/2", 8}, {"cos 1/32", 4}, {"sin 1/32", 4},
                                            {"cos 1/16", 4}, {"sin 1/16", 4}, {"cos 3/32", 4},
                                            {"sin 3/32", 4}};
  EXPECT_EQ(constants(Kind::kFirstStage, 16), of_16);
  const auto of_32 = constants(Kind::kFirstStage, 32);
  for (const char* odd : {"cos 1/64", "sin 1/64", "cos 3/64", "sin 3/64", "cos 5/64", "sin 5/64",
                          "cos 7/64", "sin 7/64"}) {
    EXPECT_EQ(of_32.at(odd), 4) << odd;
  }
}

}  // namespace
