// The networks of the DCT-IV against what they stand for, and their arithmetic against the table.
#include <gtest/gtest.h>
#include <quadmath.h>

#include <map>
#include <random>

#include "dct4/kernels/base_case.h"
#include "dct4/kernels/kernels.h"
#include "gen/count.h"

namespace {

using dct4::ComplexBlock;
using dct4::Kind;
using dct4::Row;
using gen::Quad;
using networks::Complex;

// Some hundred operations on values below 64, each rounded to 2^-113.
constexpr double kTolerance = 1e-30;

void expect_near(Quad actual, Quad expected, const std::string& what) {
  EXPECT_LT(fabsq(actual - expected), kTolerance) << what;
}

std::vector<Quad> random_values(int count) {
  std::mt19937 random(count);
  std::uniform_real_distribution<float> uniform(-1, 1);
  std::vector<Quad> result(count);
  for (Quad& value : result) value = uniform(random);
  return result;
}

ComplexBlock<Quad> random_block(int count) {
  const std::vector<Quad> parts = random_values(2 * count);
  ComplexBlock<Quad> result;
  for (int i = 0; i < count; ++i) result.push_back({parts[2 * i], parts[2 * i + 1]});
  return result;
}

Quad cos_pi(long numerator, long denominator) { return cosq(M_PIq * numerator / denominator); }
Quad sin_pi(long numerator, long denominator) { return sinq(M_PIq * numerator / denominator); }

void check_first_stage(const Row& row) {
  const int n = row.size;
  const std::vector<Quad> u = random_values(n);
  const auto z = dct4::first_stage(u, std::span(row.radices));
  for (int q = 0; q < n / 2; ++q) {
    Complex<Quad> sum{0, 0};
    for (int s = 0; s < n; ++s) {
      const int t = s % 2 == 0 ? s / 2 : -(s + 1) / 2;
      sum.re += u[s] * cos_pi(t * (2 * q + 1), n);
      sum.im += u[s] * sin_pi(t * (2 * q + 1), n);
    }
    expect_near(z[q].re, sum.re, name(row));
    expect_near(z[q].im, sum.im, name(row));
  }
}

// lambda is 3/16, which stands for any.
void check_skew_sum(const Row& row) {
  const int r = row.size;
  const auto rotations = [](int count, int first, int step, int size) {
    std::vector<dct4::Rotation<Quad>> result;
    for (int j = 0; j < count; ++j) {
      for (int k = 1; k < size; ++k) {
        const int sixteenths = k * (3 + 16 * (first + j));
        result.push_back({cos_pi(sixteenths, 8 * step), sin_pi(sixteenths, 8 * step)});
      }
    }
    return result;
  };
  const ComplexBlock<Quad> z = random_block(r);
  const auto y = r <= 8 ? dct4::skew_sum(z, rotations(1, 0, r, r), dct4::UpperHalf::kConjugated)
                        : dct4::skew_sum(z, rotations(1, 0, r / 4, r / 4),
                                         rotations(r / 4, 0, r, 4), dct4::UpperHalf::kConjugated);
  for (int a = 0; a < r; ++a) {
    Complex<Quad> sum{0, 0};
    for (int rho = 0; rho < r; ++rho) {
      const Quad c = cos_pi(rho * (3 + 16 * a), 8 * r), s = sin_pi(rho * (3 + 16 * a), 8 * r);
      sum = {sum.re + c * z[rho].re - s * z[rho].im, sum.im + s * z[rho].re + c * z[rho].im};
    }
    expect_near(y[a].re, sum.re, name(row));
    expect_near(y[a].im, a < r / 2 ? sum.im : -sum.im, name(row));
  }
}

void check_second_stage(int d, std::span<const int> radices, const std::string& what) {
  const ComplexBlock<Quad> z = random_block(d);
  const auto o = dct4::second_stage(z, radices, dct4::LastSign::kTurned);
  for (int i = 0; i < 2 * d; ++i) {
    const int l = (i + 1) / 2, sign = i % 2 == 1 && i < 2 * d - 1 ? -1 : 1;
    Quad sum = 0;
    for (int p = 0; p < d; ++p) {
      sum += z[p].re * (l < d ? cos_pi((2 * p + 1) * l, 2 * d) : Quad(0));
      sum += z[p].im * sign * sin_pi((2 * p + 1) * l, 2 * d);
    }
    expect_near(o[i], sum, what);
  }
}

void check_base_case(const Row& row) {
  const int n = row.size;
  const std::vector<Quad> x = random_values(n), y = dct4::base_case(x, std::span(row.radices));
  for (int k = 0; k < n; ++k) {
    Quad sum = 0;
    for (int j = 0; j < n; ++j) sum += x[j] * cos_pi((2 * j + 1) * (2 * k + 1), 4 * n);
    expect_near(y[k], sum, name(row));
  }
}

TEST(Dct4Networks, EqualTheirDefinitions) {
  for (const Row& row : dct4::kRows) {
    switch (row.kind) {
      case Kind::kFirstStage:
        check_first_stage(row);
        break;
      case Kind::kSkewSum:
        check_skew_sum(row);
        break;
      case Kind::kSecondStage:
        check_second_stage(row.size, row.radices, name(row));
        break;
      case Kind::kBaseCase:
        check_base_case(row);
        break;
    }
  }
  check_second_stage(8, std::vector{4}, "second stage of the base case 32");
}

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
