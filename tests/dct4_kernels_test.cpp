// The arithmetic of the DCT-IV's kernels against the table.
#include <gtest/gtest.h>

#include <map>

#include "dct4/kernels/kernels.h"
#include "gen/count.h"

namespace {

using dct4::Kind;
using dct4::Row;

// Additions and multiplications; second stages with their rotations.
const std::map<Kind, std::map<int, gen::Counts>> kCounts = {
    {Kind::kFirstStage,
     {{2, {0, 0}}, {4, {6, 2}}, {8, {24, 12}}, {16, {68, 32}}, {32, {184, 96}}, {64, {448, 224}}}},
    {Kind::kSkewSum,
     {{2, {6, 4}}, {4, {22, 12}}, {8, {66, 32}}, {16, {176, 96}}, {32, {440, 224}}}},
    {Kind::kSecondStage,
     {{1, {2, 4}},
      {2, {10, 10}},
      {4, {32, 28}},
      {8, {88, 72}},
      {16, {224, 176}},
      {32, {512, 352}}}},
    {Kind::kBaseCase, {{2, {2, 4}}, {4, {12, 8}}, {8, {32, 24}}, {16, {88, 64}}, {32, {216, 144}}}},
};

TEST(Dct4Kernels, HaveTheArithmeticOfTheTable) {
  using enum gen::Op;
  for (const Row& row : dct4::kRows) {
    for (const auto precision : {gen::Precision::kSingle, gen::Precision::kDouble}) {
      const gen::Graph graph = dct4::graph(row, precision);
      const gen::Counts wanted = kCounts.at(row.kind).at(row.size);
      EXPECT_EQ(gen::count_operations(graph), wanted) << row.size;
      // And so many statements: none repeats another.
      const std::vector<bool> live = graph.live_nodes();
      std::map<gen::Op, int> statements;
      for (gen::NodeId id = 0; id < graph.size(); ++id) statements[graph[id].op] += live[id];
      // T(2) has its negation, as a subtraction from zero; else there is none.
      const int negations = row.kind == Kind::kFirstStage && row.size == 2;
      EXPECT_EQ(statements[kAdd] + statements[kSub], wanted.additions + negations) << row.size;
      EXPECT_EQ(statements[kMul] + statements[kProduct], wanted.multiplications) << row.size;
      EXPECT_EQ(statements[kFlipSigns], 0) << row.size;
    }
  }
}

// A body reaches memory by its accessors alone, and products of two values count once.
TEST(Bodies, CallTheirAccessors) {
  gen::Body body;
  body.name = gen::specialisation("Turn", gen::Precision::kDouble, 2, 8);
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
  const std::string text = gen::emit_body(body, {});
  for (const char* part : {"struct Turn<D2, 8>", "run(const auto& x, const auto& w, const auto& y)",
                           "x.load(3);", "= x3 * w7;", "y.store(5, t1);"}) {
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
