// The algorithms by themselves, in quad precision, and the trees that the tables give them.
#include <gtest/gtest.h>
#include <quadmath.h>

#include <algorithm>
#include <random>

#include "dft_complex/dft_complex.h"
#include "gen/expr.h"
#include "gen/interpret.h"
#include "gen/manifest.h"
#include "networks/complex_dft.h"
#include "networks/one_sample.h"
#include "networks/tree.h"

namespace {

using gen::Quad;
using networks::Complex;
using networks::Tree;
using Block = std::vector<Complex<Quad>>;

TEST(Tree, ParsesAndPrints) {
  for (const char* text : {"7", "CT(4, 2)", "PFA(2, CT(3, 3))", "CT(CT(4, 2), PFA(5, 3))"}) {
    EXPECT_EQ(to_string(networks::parse_tree(text)), text);
  }
  EXPECT_EQ(networks::parse_tree("CT(CT(4, 2), PFA(5, 3))").length, 120);
  for (const char* text : {"", "1", "CT(4,2)", "CT(4, 2", "PFA(4, 6)", "CT(4, 2) ", "XT(2, 2)"}) {
    EXPECT_THROW(networks::parse_tree(text), std::invalid_argument) << text;
  }
}

// Root exp(-2 pi i exponent / n).
Block direct_dft(const Block& x, int exponent) {
  const int n = static_cast<int>(x.size());
  Block y(n);
  for (int k = 0; k < n; ++k) {
    for (int j = 0; j < n; ++j) {
      const Quad angle = -2 * M_PIq * (exponent * j * k % n) / n;
      y[k].re += x[j].re * cosq(angle) - x[j].im * sinq(angle);
      y[k].im += x[j].re * sinq(angle) + x[j].im * cosq(angle);
    }
  }
  return y;
}

Block random_block(int n) {
  std::mt19937 random(n);
  std::uniform_real_distribution<float> uniform(-1, 1);
  Block x(n);
  for (auto& sample : x) sample = {uniform(random), uniform(random)};
  return x;
}

TEST(ComplexDft, EqualsTheDefinition) {
  for (const dft_complex::Row& row : dft_complex::kRows32fc) {
    const Tree tree = networks::parse_tree(row.tree);
    ASSERT_EQ(tree.length, row.length);
    const Block x = random_block(row.length);
    networks::OneSample<Quad> form;
    for (int exponent : {1, -1, 7}) {
      if (std::gcd(exponent, row.length) != 1) continue;
      const Block y = networks::ComplexDft(form).run(tree, x, exponent);
      const Block expected = direct_dft(x, exponent);
      for (int k = 0; k < row.length; ++k) {
        // Some hundred operations on values below 64, each rounded to 2^-113.
        EXPECT_LT(fabsq(y[k].re - expected[k].re), 1e-29) << row.tree << " " << exponent;
        EXPECT_LT(fabsq(y[k].im - expected[k].im), 1e-29) << row.tree << " " << exponent;
      }
    }
  }
}

// Which samples share a vector is free to choose because it rounds nothing differently.
TEST(ComplexKernels, HaveTheValuesOfThePlainNetwork) {
  for (const gen::Kernel& kernel : gen::all_kernels()) {
    if (!kernel.has_twin) continue;
    gen::Graph graph(kernel.precision);
    std::vector<Complex<gen::Expr>> samples;
    std::vector<double> source;
    for (const auto& sample : random_block(kernel.length)) {
      const int at = static_cast<int>(source.size());
      samples.push_back({{&graph, graph.input(at)}, {&graph, graph.input(at + 1)}});
      source.push_back(static_cast<double>(sample.re));
      source.push_back(static_cast<double>(sample.im));
    }
    networks::OneSample<gen::Expr> form(graph);
    const int exponent = kernel.scale_rule == gen::ScaleRule::kForward ? 1 : -1;
    const auto spectrum =
        networks::ComplexDft(form).run(networks::parse_tree(kernel.recipe), samples, exponent);
    for (int k = 0; k < kernel.length; ++k) {
      graph.output(2 * k, spectrum[k].re.value);
      graph.output(2 * k + 1, spectrum[k].im.value);
    }
    EXPECT_EQ(gen::interpret(kernel.graph(), source, 1), gen::interpret(graph, source, 1))
        << kernel.name;
  }
}

// The values that stand between the stages of a tree, by the definition of the splits.
void stage_values(const Tree& tree, const Block& x, int exponent, Block& values) {
  if (tree.kind == Tree::Kind::kLeaf) return;
  const bool twiddles = tree.kind == Tree::Kind::kCooleyTukey;
  const int a = tree.first().length, b = tree.second().length, n = a * b;
  std::vector<Block> rows(a, Block(b));
  for (int j2 = 0; j2 < b; ++j2) {
    Block column(a);
    for (int j1 = 0; j1 < a; ++j1) column[j1] = x[(b * j1 + (twiddles ? 1 : a) * j2) % n];
    const int root = twiddles ? exponent : exponent * b;
    stage_values(tree.first(), column, root, values);
    const Block stage = direct_dft(column, root);
    values.insert(values.end(), stage.begin(), stage.end());
    for (int k1 = 0; k1 < a; ++k1) {
      const Quad angle = twiddles ? -2 * M_PIq * exponent * j2 * k1 / n : Quad(0);
      rows[k1][j2] = {stage[k1].re * cosq(angle) - stage[k1].im * sinq(angle),
                      stage[k1].re * sinq(angle) + stage[k1].im * cosq(angle)};
    }
  }
  for (int k1 = 0; k1 < a; ++k1) {
    stage_values(tree.second(), rows[k1], twiddles ? exponent : exponent * a, values);
    values.insert(values.end(), rows[k1].begin(), rows[k1].end());
  }
}

// A count can't tell PFA(4, 5) from PFA(5, 4); what a kernel computes on its way can.
TEST(ComplexKernels, HoldTheStageValuesOfTheirTree) {
  for (const gen::Kernel& kernel : gen::all_kernels()) {
    const Block x = random_block(kernel.length);
    std::vector<double> source;
    for (const auto& sample : x) {
      source.insert(source.end(), {static_cast<double>(sample.re), static_cast<double>(sample.im)});
    }
    std::vector<double> held;
    for (const auto& lanes : gen::evaluate(kernel.graph(), source, 1)) {
      for (double lane : lanes) held.push_back(std::abs(lane));
    }
    std::sort(held.begin(), held.end());
    const auto is_held = [&](Quad value) {
      const double magnitude = std::abs(static_cast<double>(value)), tolerance = 1e-5;
      const auto at = std::lower_bound(held.begin(), held.end(), magnitude - tolerance);
      return at != held.end() && *at < magnitude + tolerance;
    };
    Block values;
    const int exponent = kernel.scale_rule == gen::ScaleRule::kForward ? 1 : -1;
    stage_values(networks::parse_tree(kernel.recipe), x, exponent, values);
    int missing = 0;
    for (const auto& value : values) missing += !is_held(value.re) || !is_held(value.im);
    EXPECT_EQ(missing, 0) << kernel.name << ": " << kernel.recipe;
  }
}

}  // namespace
