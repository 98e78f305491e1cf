// The generator's passes, one by one, on graphs small enough to see through.
#include <gtest/gtest.h>

#include <random>
#include <set>

#include "gen/cost.h"
#include "gen/count.h"
#include "gen/expr.h"
#include "gen/interpret.h"
#include "gen/moves.h"
#include "gen/pack.h"
#include "gen/pack_search.h"
#include "gen/precision.h"
#include "gen/rewrite.h"
#include "gen/schedule.h"
#include "gen/side_by_side.h"
#include "networks/mirror.h"

namespace {

using gen::Graph;
using gen::Lane;
using gen::NodeId;
using gen::Number;
using gen::Op;
using gen::Precision;
using gen::Value;

int count_nodes(const Graph& graph, Op op) {
  const std::vector<bool> live = graph.live_nodes();
  int count = 0;
  for (NodeId id = 0; id < graph.size(); ++id) count += live[id] && graph[id].op == op;
  return count;
}

std::vector<double> random_source(int size, unsigned seed = 1) {
  std::mt19937 random(seed);
  std::uniform_real_distribution<float> uniform(-1, 1);
  std::vector<double> source(size);
  for (double& element : source) element = uniform(random);
  return source;
}

// Scaled by 0.3.
void expect_same_bits(const Graph& graph, const Graph& other, const std::vector<double>& source) {
  const auto expected = gen::interpret(graph, source, 0.3);
  const auto result = gen::interpret(other, source, 0.3);
  ASSERT_EQ(result, expected);
  for (std::size_t i = 0; i < expected.size(); ++i) {
    EXPECT_EQ(std::signbit(result[i]), std::signbit(expected[i])) << "a zero of the other sign";
  }
}

// Vectors v0, v1, ... of four elements of the source each, kept from being loads by an addition.
std::vector<NodeId> computed_vectors(Graph& graph, int count) {
  std::vector<NodeId> result;
  for (int v = 0; v < count; ++v) {
    std::vector<Lane> lanes;
    for (int lane = 0; lane < 4; ++lane) lanes.push_back({graph.input(4 * v + lane).node, 0});
    const Value loaded = graph.lanes(lanes);
    result.push_back(graph.add(loaded, loaded).node);
  }
  return result;
}

void output_vector(Graph& graph, int first, Value vector) {
  for (int lane = 0; lane < 4; ++lane) graph.output(first + lane, vector, lane);
}

TEST(Graph, SharesEqualOperationsAndNothingElse) {
  Graph graph(Precision::kSingle);
  const Value x = graph.input(0), y = graph.input(1);
  EXPECT_EQ(graph.add(x, y), graph.add(y, x));
  EXPECT_NE(graph.sub(x, y).node, graph.sub(y, x).node);
  EXPECT_EQ(graph.sub(x, -y), graph.add(x, y));
  EXPECT_EQ(graph.add(-x, -y), -graph.add(x, y));
  EXPECT_EQ(graph.mul(-gen::ratio(1, 3), x), -graph.mul(gen::ratio(1, 3), x));
  EXPECT_NE(graph.mul(gen::Factors{gen::ratio(-1, 3)}, x), graph.mul(gen::ratio(1, 3), x));
}

TEST(Count, LeavesOutWhatIsNoOperation) {
  Graph graph(Precision::kSingle);
  const std::vector<NodeId> v = computed_vectors(graph, 1);
  const Number third = gen::ratio(1, 3);
  const Value a = graph.mul({Number(0), Number(1), Number(-1), third}, {v[0]});
  const Value b = graph.mul({third, third, -third, -third}, {v[0]});
  output_vector(graph, 0, graph.add(a, b));
  // Four sums at the start; a + b is empty in the lane with 0. In the last lane c x and -c x are
  // two products; lane 3 of `a` and lanes 0 to 2 of `b` have one each.
  EXPECT_EQ(gen::count_operations(graph), (gen::Counts{4 + 3, 1 + 4}));
  EXPECT_EQ(gen::count_carried_operations(graph), (gen::Counts{4 + 4, 3 + 4}));

  Graph unread(Precision::kSingle);
  const NodeId w = computed_vectors(unread, 1)[0];
  unread.output(0, unread.mul(third, {w}), 2);
  EXPECT_EQ(gen::count_operations(unread), (gen::Counts{1, 1})) << "only one lane is read";
}

TEST(AbsorbSignFlips, PutsThemIntoConstants) {
  Graph graph(Precision::kSingle);
  const std::vector<NodeId> v = computed_vectors(graph, 3);
  const Number c = gen::cos_of_turn(1, 9);
  const Value before = graph.mul(c, graph.flip_signs({v[0]}, 0b0110));
  const Value behind = graph.flip_signs(graph.mul({c, Number(0), -c, c}, {v[1]}), 0b0011);
  const Value left_alone = graph.flip_signs({v[2]}, 0b1010);
  output_vector(graph, 0, before);
  output_vector(graph, 4, behind);
  output_vector(graph, 8, graph.add(left_alone, left_alone));
  const Graph rewritten = gen::absorb_sign_flips(graph);
  EXPECT_EQ(count_nodes(graph, Op::kFlipSigns), 3);
  EXPECT_EQ(count_nodes(rewritten, Op::kFlipSigns), 1);
  expect_same_bits(graph, rewritten, random_source(12));
}

// Wanted vectors as strings: "a0b0c0d0" takes lane 0 of vectors a, b, c and d; "--" is open.
int moves_needed(const std::vector<std::string>& wanted) {
  Graph graph(Precision::kSingle);
  const std::vector<NodeId> vectors = computed_vectors(graph, 4);
  for (std::size_t i = 0; i < wanted.size(); ++i) {
    std::vector<Lane> picks(4);
    for (int lane = 0; lane < 4; ++lane) {
      const char vector = wanted[i][2 * lane], index = wanted[i][2 * lane + 1];
      if (vector != '-') picks[lane] = {vectors[vector - 'a'], index - '0'};
    }
    const Value result = graph.lanes(picks);
    for (int lane = 0; lane < 4; ++lane) {
      if (picks[lane].node != gen::kNoNode) graph.output(4 * i + lane, result, lane);
    }
  }
  const Graph moved = gen::synthesize_shuffles(gen::load_vectors(graph, 16));
  expect_same_bits(graph, moved, random_source(16));
  for (NodeId id = 0; id < moved.size(); ++id) {
    EXPECT_TRUE(moved[id].op != Op::kLanes || gen::sse_moves().single_move(moved, id));
  }
  return gen::count_vector_operations(moved).moves;
}

TEST(Moves, TakeAsFewInstructionsAsKnown) {
  EXPECT_EQ(moves_needed({"a0a1a2a3", "b0b1----", "c2c3----"}), 1) << "in place, but for one half";
  EXPECT_EQ(moves_needed({"a1a0a3a2"}), 1);
  EXPECT_EQ(moves_needed({"a0a1b2b3", "b2b0a3a3"}), 2);
  EXPECT_EQ(moves_needed({"a0b0a1b1", "a2b2a3b3"}), 2) << "interleaving";
  EXPECT_EQ(moves_needed({"a0b0c0d0", "a1b1c1d1", "a2b2c2d2", "a3b3c3d3"}), 8) << "transposition";
  EXPECT_EQ(moves_needed({"a0b0c0--", "a1b1c1--", "a2b2c2--"}), 5);
  EXPECT_EQ(moves_needed({"a0b0c0d0", "a1b1c1d1"}), 4);
  EXPECT_EQ(moves_needed({"d3b0a2a1"}), 2);
}

TEST(Moves, NeverLoadBehindTheSource) {
  Graph graph(Precision::kSingle);
  // Five complex samples: the last vector is half a vector.
  for (int sample = 0; sample < 5; ++sample) {
    const int partner = (sample + 2) % 5;
    const Value pair = graph.lanes({{graph.input(2 * sample).node, 0},
                                    {graph.input(2 * sample + 1).node, 0},
                                    {graph.input(2 * partner).node, 0},
                                    {graph.input(2 * partner + 1).node, 0}});
    output_vector(graph, 4 * sample, graph.add(pair, pair));
  }
  for (const bool by_halves : {false, true}) {
    const Graph loaded = gen::load_vectors(graph, 10, by_halves);
    for (NodeId id = 0; id < loaded.size(); ++id) {
      if (loaded[id].op != Op::kLanes) continue;
      const auto move = gen::sse_moves().single_move(loaded, id);
      ASSERT_TRUE(move);
      for (const int first : move->elements) EXPECT_LE(first + (move->is_whole_load ? 4 : 2), 10);
    }
    EXPECT_EQ(gen::count_vector_operations(loaded).moves == 0, by_halves) << "loads do it all";
    expect_same_bits(graph, loaded, random_source(10));
  }
}

TEST(SideBySide, DoesTheSameInBothHalves) {
  Graph graph(Precision::kSingle);
  const std::vector<NodeId> v = computed_vectors(graph, 2);
  const Value moved = graph.lanes({{v[0], 2}, {v[0], 0}, {v[1], 3}, {v[1], 3}});
  const gen::Factors factors = {gen::ratio(1, 3), gen::ratio(1, 5), gen::ratio(-1, 7),
                                gen::ratio(1, 9)};
  const Value turned = graph.flip_signs(graph.mul(factors, moved), 0b0110);
  graph.output(0, graph.sub(turned, {v[1]}));
  const Graph wide = gen::side_by_side(graph, 8);
  const std::vector<double> source = random_source(16);
  const auto result = gen::evaluate(wide, source, 1)[wide.outputs()[0].from.node];
  for (int half = 0; half < 2; ++half) {
    const auto begin = source.begin() + 8 * half;
    const auto wanted = gen::evaluate(graph, {begin, begin + 8}, 1)[graph.outputs()[0].from.node];
    for (int lane = 0; lane < 4; ++lane) EXPECT_EQ(result[4 * half + lane], wanted[lane]);
  }
}

TEST(WidenProducts, RoundsWhereASingleSumReads) {
  Graph graph(Precision::kSingle);
  const gen::Expr x{&graph, graph.input(0)}, y{&graph, graph.input(1)}, z{&graph, graph.input(2)};
  const Number c = gen::cos_of_turn(1, 7), d = gen::sin_of_turn(1, 7);
  const gen::Expr shared = c * x + d * y;  // double, read twice: rounded once
  const gen::Expr sole = shared - c * z;   // double: reads the sole product
  graph.output(0, graph.scale((shared + y).value));
  graph.output(1, graph.scale(sole.value));
  const Graph widened = gen::widen_products(graph);
  EXPECT_EQ(count_nodes(widened, Op::kWiden), 3 + 1) << "x, y, z, and `shared` once more";
  EXPECT_EQ(count_nodes(widened, Op::kRound), 1 + 1) << "`shared`, and the output scaled in double";
  const std::vector<double> source = random_source(3);
  const float a = source[0], b = source[1], e = source[2];
  const auto dc = static_cast<double>(c.value()), dd = static_cast<double>(d.value());
  const float s = 0.3f, f = static_cast<float>(dc * a + dd * b);
  const std::vector<double> result = gen::interpret(widened, source, s);
  EXPECT_EQ(result[0], s * (f + b));
  EXPECT_EQ(result[1], static_cast<float>((f - dc * e) * s));
}

// A value that tells how it was put together.
struct Text {
  std::string text;

  friend Text operator+(const Text& a, const Text& b) {
    return {"(" + a.text + " + " + b.text + ")"};
  }
  friend Text operator-(const Text& a, const Text& b) {
    return {"(" + a.text + " - " + b.text + ")"};
  }
  friend Text operator-(const Text& a) { return {"-" + a.text}; }
  friend Text operator*(const Number& c, const Text& a) { return {c.name() + " " + a.text}; }
};

// In which order nodes are made is the compiler's choice between operands.
TEST(Mirror, AddsInAnOrderThatHangsOnTheNetworkAlone) {
  const auto mirrored = [](bool made_from_behind) {
    const auto make = [=](const std::vector<gen::Expr>& in) {
      const auto product = [&](int k) { return gen::cos_of_turn(k, 32) * in[0]; };
      for (int k = 3; made_from_behind && k > 0; --k) product(k);
      const gen::Expr sum = product(1) + product(2);
      return std::vector{sum + product(3)};
    };
    return networks::run_mirrored(1, make, std::vector<Text>{{"y"}})[0].text;
  };
  EXPECT_EQ(mirrored(false), mirrored(true));
}

Graph random_graph(unsigned seed) {
  std::mt19937 random(seed);
  Graph graph(Precision::kSingle);
  std::vector<Value> values;
  for (int element = 0; element < 12; ++element) values.push_back(graph.input(element));
  for (int i = 0; i < 150; ++i) {
    const Value a = values[random() % values.size()], b = values[random() % values.size()];
    values.push_back(random() % 3 == 0 ? graph.mul(gen::cos_of_turn(random() % 20, 41), a)
                                       : graph.sub(a, b));
  }
  for (int element = 0; element < 12; ++element) {
    graph.output(element, graph.scale(values[values.size() - 1 - element]));
  }
  return graph;
}

TEST(Schedule, OrdersEveryOperationOnceBehindItsOperands) {
  std::set<std::vector<NodeId>> orders;
  for (unsigned seed = 0; seed < 10; ++seed) {
    const Graph graph = random_graph(seed);
    for (const char* name : {"bisect 0", "bisect 5", "live 0", "live 5", "paced 0", "paced 25"}) {
      const std::vector<NodeId> order = gen::schedule(graph, gen::parse_order(name));
      EXPECT_EQ(order, gen::schedule(graph, gen::parse_order(name))) << "not deterministic";
      std::set<NodeId> done;
      for (NodeId id : order) {
        for (NodeId operand : graph.operands(id)) {
          EXPECT_TRUE(gen::is_load(graph, operand) || done.contains(operand)) << name;
        }
        EXPECT_TRUE(done.insert(id).second) << name;
      }
      const std::vector<bool> live = graph.live_nodes();
      for (NodeId id = 0; id < graph.size(); ++id) {
        EXPECT_EQ(done.contains(id), live[id] && !gen::is_load(graph, id)) << name;
      }
      orders.insert(order);
    }
  }
  EXPECT_GT(orders.size(), 50u) << "strategies and variants differ";
  for (const char* name : {"", "bisect", "bisect x", "live 1 ", "live -1", "depth 0"}) {
    EXPECT_THROW(gen::parse_order(name), std::invalid_argument) << name;
  }
}

// Scalars of the kinds that real kernels have: (x0 + x1, x2 - x3) times constants, scaled, the
// second one's negative taken from zero.
Graph butterflies(bool subtract_second = true) {
  Graph graph(Precision::kDouble);
  const Value sum = graph.add(graph.input(0), graph.input(1));
  const Value x2 = graph.input(2), x3 = graph.input(3);
  const Value difference = subtract_second ? graph.sub(x2, x3) : graph.sub(x3, x2);
  const Value turned = graph.mul(gen::cos_of_turn(1, 9), sum);
  const Value other = graph.mul(gen::sin_of_turn(1, 7), difference);
  graph.output(0, graph.scale(turned));
  graph.output(1, graph.settle_sign(-graph.scale(other)));
  return gen::number_from_outputs(graph);
}

gen::Pairing butterflies_pairing(const Graph& graph) {
  std::map<Op, std::vector<NodeId>> of_op;
  for (NodeId id = 0; id < graph.size(); ++id) {
    of_op[graph[id].op == Op::kSub ? Op::kAdd : graph[id].op].push_back(id);
  }
  const auto pair = [&](Op op) { return gen::Pair{of_op[op][0], of_op[op][1]}; };
  return {pair(Op::kAdd),
          pair(Op::kMul),
          pair(Op::kScale),
          {gen::kIdentity + of_op[Op::kScale][0], of_op[Op::kFromZero][0]}};
}

TEST(Pack, GivesTheSameBitsSideBySide) {
  const Graph graph = butterflies();
  const Graph packed = gen::pack(graph, butterflies_pairing(graph), gen::sse_moves());
  EXPECT_NO_THROW(gen::prove_equal(graph, packed));
  for (const Op op : {Op::kMul, Op::kScale, Op::kFromZero, Op::kSub, Op::kFlipSigns}) {
    EXPECT_EQ(count_nodes(packed, op), op == Op::kMul || op == Op::kScale);
  }
  for (const double zero : {0.0, -0.0}) {
    expect_same_bits(graph, packed, {zero, zero, zero, -zero});
  }
  expect_same_bits(graph, packed, random_source(4));
  EXPECT_EQ(gen::parse_pairing("12+40 14-3*2"), (gen::Pairing{{12, 52}, {14, 11}, {15, 12}}));
  EXPECT_EQ(gen::to_string({{14, 11}, {12, 52}, {15, 12}}), "12+40 14-3*2");
}

TEST(Pack, RefusesPairingsThatDoNotFit) {
  const Graph graph = butterflies();
  const gen::Pairing good = butterflies_pairing(graph);
  const auto refused = [&](gen::Pairing pairing) {
    EXPECT_THROW(gen::pack(graph, pairing, gen::sse_moves()), std::invalid_argument);
  };
  refused({{good[0].low, good[1].high}});           // a sum beside a product
  refused({good[0], {good[0].high, good[0].low}});  // paired twice
  refused({{0, graph.size()}});
  refused({{good[0].low, good[0].low}});

  // Each sum reads the other one's partner: a circle, and a sum beside one that it depends on.
  Graph crossed(Precision::kDouble);
  const Value a = crossed.add(crossed.input(0), crossed.input(1));
  const Value b = crossed.add(crossed.input(2), crossed.input(3));
  const Value after_a = crossed.add(a, crossed.input(2));
  const Value after_b = crossed.add(b, crossed.input(0));
  crossed.output(0, after_a);
  crossed.output(1, after_b);
  EXPECT_NO_THROW(
      gen::pack(crossed, {{a.node, b.node}, {after_a.node, after_b.node}}, gen::sse_moves()));
  for (const gen::Pairing& pairing : std::vector<gen::Pairing>{
           {{a.node, after_b.node}, {b.node, after_a.node}}, {{a.node, after_a.node}}}) {
    EXPECT_THROW(gen::pack(crossed, pairing, gen::sse_moves()), std::invalid_argument);
  }
  for (const char* text : {"x", "1", "1+", "1+2*", "1+2x"}) {
    EXPECT_THROW(gen::parse_pairing(text), std::invalid_argument) << text;
  }
}

TEST(Pack, IsProvedAndAWrongLaneIsFound) {
  const Graph graph = butterflies();
  EXPECT_THROW(gen::prove_equal(graph, butterflies(false)), std::logic_error) << "b - a for a - b";
  // Two lanes exchanged; and the second output written as the first.
  const Graph packed = gen::pack(graph, butterflies_pairing(graph), gen::sse_moves());
  for (const auto& [first, second] : {std::pair(1, 0), std::pair(0, 0)}) {
    Graph wrong = gen::rebuild(packed, [&](Graph& copy, NodeId id, const gen::NewValues& values) {
      const Value value = gen::copy_node(packed, id, copy, values);
      if (packed[id].op != Op::kMul) return value;
      return copy.lanes({{value.node, first}, {value.node, second}});
    });
    EXPECT_THROW(gen::prove_equal(graph, wrong), std::logic_error);
  }
  // The negative of a sum is no sum of negatives: both may be zeros.
  Graph sum(Precision::kDouble), negatives(Precision::kDouble);
  sum.output(0, -sum.add(sum.input(0), sum.input(1)));
  const Value x = negatives.flip_signs(negatives.input(0), 1);
  negatives.output(0, negatives.sub(negatives.settle_sign(x), negatives.input(1)));
  EXPECT_THROW(gen::prove_equal(sum, negatives), std::logic_error);
}

TEST(PairingSearch, HalvesWhatHasTwoEqualHalves) {
  Graph graph(Precision::kDouble);
  for (int half = 0; half < 2; ++half) {
    Value value = graph.input(half);
    for (int i = 1; i < 8; ++i) {
      value = graph.sub(graph.mul(gen::cos_of_turn(i, 17), value), graph.input(2 * i + half));
    }
    graph.output(half, graph.scale(value));
  }
  graph = gen::number_from_outputs(graph);
  const gen::FoundPairing found = gen::find_pairing(graph, {3000, 1, 10});
  EXPECT_EQ(found.pairing.size(), 7u + 7u + 1u + 1u) << "the sign that products leave is last";
  EXPECT_EQ(gen::find_pairing(graph, {3000, 1, 10}).pairing, found.pairing);
  const Graph packed = gen::pack(graph, found.pairing, gen::sse_moves());
  EXPECT_NO_THROW(gen::prove_equal(graph, packed));
  EXPECT_EQ(gen::count_vector_operations(packed).moves, 0) << "loads stand where they are wanted";
}

}  // namespace
