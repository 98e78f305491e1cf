// The algorithms by themselves, in quad precision, and the trees that the tables give them.
#include <gtest/gtest.h>
#include <quadmath.h>

#include <algorithm>
#include <random>

#include "dft_complex/transform_32fc.h"
#include "gen/interpret.h"
#include "gen/rewrite.h"
#include "generate/manifest.h"
#include "networks/one_sample.h"
#include "networks/real_dft.h"
#include "networks/row_checks.h"

namespace {

using dft_complex::kRows32fc;
using dft_complex::kRows64fc;
using gen::Quad;
using networks::Complex;
using networks::Tree;
using Block = std::vector<Complex<Quad>>;

TEST(Tree, ParsesAndPrints) {
  for (const char* text : {"7", "11r", "CT(4, 2)", "PFA(2, CT(3, 3))", "alt(PFA(5w, 3))", "Zc(9)",
                           "split(PFA(3, 2), Z(3))", "Rader(PFA(2, 3), 6)", "chirp(CT(4, 4s))"}) {
    EXPECT_EQ(to_string(networks::parse_tree(text)), text);
  }
  EXPECT_EQ(networks::parse_tree("CT(CT(4, 2), PFA(5, 3))").length, 120);
  EXPECT_EQ(networks::parse_tree("split(PFA(3, 2), Z(3))").length, 12);
  EXPECT_EQ(networks::parse_tree("Rader(PFA(2, 3), 6)").length, 7);
  for (const char* text : {"", "1", "CT(4,2)", "CT(4, 2", "PFA(4, 6)", "CT(4, 2) ", "XT(2, 2)",
                           "split(3, 4)", "Rader(6, 4)", "alt(3, 3)"}) {
    EXPECT_THROW(networks::parse_tree(text), std::invalid_argument) << text;
  }
}

// What a table must not hold, and that it is told where.
TEST(Rows, AreChecked) {
  const networks::RaderTable& leaves = dft_complex::rader_64fc();
  const auto refusal = [&](const char* text, int length) -> std::string {
    try {
      networks::tree_of_row({"table.cpp", length}, text, leaves);
    } catch (const std::invalid_argument& error) {
      return error.what();
    }
    return "";
  };
  EXPECT_EQ(refusal("PFA(5w, 7r)", 35), "");
  EXPECT_EQ(refusal("chirp(CT(4, 4))", 7), "");
  const std::pair<const char*, int> wrong[] = {{"CT(3, 4)", 9},
                                               {"CT(3, 3", 9},
                                               {"PFA(5q, 2)", 10},
                                               {"6", 6},
                                               {"13z", 13},
                                               {"chirp(CT(4, 4))", 11},
                                               {"Rader(CT(2, 4), CT(2, 4))", 9}};
  for (const auto& [text, length] : wrong) {
    EXPECT_TRUE(refusal(text, length).starts_with("table.cpp, length " + std::to_string(length)))
        << text << ": " << refusal(text, length);
  }
  const auto table = [](const networks::RaderTable::Row& row) {
    return networks::RaderTable("table.cpp", {row});
  };
  EXPECT_NO_THROW(table({"13", "PFA(3, 4)", "PFA(3, 2)", "CT(3, 2)"}));
  for (const networks::RaderTable::Row& row :
       {networks::RaderTable::Row{"13", "PFA(3, 5)", "PFA(3, 2)", "CT(3, 2)"},
        {"13", "PFA(3, 4)", "PFA(3, 2)", "CT(3, 2q)"},
        {"13", "PFA(3, 4)", "PFA(3, 2)", ""},
        {"15", "PFA(7, 2)", "7", "7"}}) {
    EXPECT_THROW(table(row), std::invalid_argument) << row.leaf << " " << row.odd;
  }
  EXPECT_THROW(networks::smallest_primitive_root(9), std::invalid_argument);
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

// Some thousand operations on values below 64, each rounded to 2^-113.
constexpr double kQuadTolerance = 1e-29;

bool is_near(const Complex<Quad>& a, const Complex<Quad>& b) {
  return fabsq(a.re - b.re) < kQuadTolerance && fabsq(a.im - b.im) < kQuadTolerance;
}

TEST(ComplexNetworks, EqualTheDefinition) {
  for (const auto& row : kRows32fc) {
    const Block x = random_block(row.length);
    networks::OneSample<Quad> form;
    for (int exponent : {1, -1}) {
      const Block y =
          dft_complex::transform_32fc(form, networks::parse_tree(row.tree), x, exponent);
      const Block expected = direct_dft(x, exponent);
      ASSERT_EQ(y.size(), expected.size());
      for (int k = 0; k < row.length; ++k) {
        EXPECT_TRUE(is_near(y[k], expected[k])) << row.tree << " " << exponent << " bin " << k;
      }
    }
  }
}

// Real data at the bins and between them, with every root, for every tree that occurs.
TEST(RealNetworks, EqualTheDefinition) {
  const networks::RaderTable& table = dft_complex::rader_64fc();
  networks::RealDft<Quad> dft(table);
  const auto sum = [](const std::vector<Quad>& x, int f, int denominator) {
    Complex<Quad> y = {0, 0};
    for (std::size_t j = 0; j < x.size(); ++j) {
      const Quad angle = -2 * M_PIq * (static_cast<long>(j) * f % denominator) / denominator;
      y = {y.re + x[j] * cosq(angle), y.im + x[j] * sinq(angle)};
    }
    return y;
  };
  const auto check = [&](const Tree& tree, const std::vector<Quad>& x, bool between, int e) {
    const int n = tree.length;
    auto bins = between ? dft.odd(tree, x, e) : dft.real(tree, x, e);
    for (int k = 0; k < static_cast<int>(bins.size()); ++k) {
      const int f = between ? 2 * k + 1 : 2 * k;
      if (f == 0 || f == n) bins[k].im = 0;
      EXPECT_TRUE(is_near(bins[k], sum(x, e * f, 2 * n)))
          << to_string(tree) << (between ? " between" : "") << " bins, root " << e << ", bin " << k;
    }
  };
  const auto check_all = [&](const char* text, bool between) {
    const Tree tree = networks::parse_tree(text);
    std::vector<Quad> x;
    for (const auto& sample : random_block(tree.length)) x.push_back(sample.re);
    for (int e : {1, -1, 5, 7}) {
      if (std::gcd(e, between ? 2 * tree.length : tree.length) == 1) check(tree, x, between, e);
    }
  };
  for (const auto& row : kRows64fc) check_all(row.tree, false);
  for (const char* leaf : {"13x", "13y", "23t", "29t", "7r", "11r"}) check_all(leaf, false);
  for (const char* tree :
       {"2", "3", "3n", "4", "CT(3, 2)", "PFA(3, 2)", "PFA(2, 3)", "Z(3)", "Z(4)", "Z(4s)",
        "CT(3, 3n)", "alt(CT(3, 3))", "Zc(CT(3, 3))", "CT(5, 4s)", "CT(7, 3)", "PFA(2, 7)",
        "CT(PFA(5, 3), 2)", "CT(13y, 2)", "23t"}) {
    check_all(tree, true);
  }
}

TEST(RaderSpectrum, HasTheStatedProperties) {
  for (int p : {7, 11, 13, 17, 19, 23, 29, 31, 37, 41, 43, 53, 61}) {
    const int n = p - 1;
    const auto s = networks::rader_spectrum(p, 0);
    EXPECT_LT(fabsq(s[0].re.value() + Quad(1) / n), kQuadTolerance);
    EXPECT_LT(fabsq(s[0].im.value()), kQuadTolerance);
    for (int k = 1; k < n; ++k) {
      const Quad re = s[k].re.value(), im = s[k].im.value();
      EXPECT_LT(fabsq(sqrtq(re * re + im * im) - sqrtq(Quad(p)) / n), kQuadTolerance);
    }
    const Quad middle = sqrtq(Quad(p)) / n;
    EXPECT_LT(fabsq(s[n / 2].re.value() - (p % 4 == 1 ? middle : 0)), kQuadTolerance);
    EXPECT_LT(fabsq(s[n / 2].im.value() + (p % 4 == 3 ? middle : 0)), kQuadTolerance);
  }
  const auto s = networks::rader_spectrum(13, 0);
  EXPECT_NEAR(static_cast<double>(s[1].re.value()), 0.2562477, 5e-8);
  EXPECT_NEAR(static_cast<double>(s[1].im.value()), -0.1568914, 5e-8);
  EXPECT_EQ(networks::root_powers(13), (std::vector<int>{1, 2, 4, 8, 3, 6, 12, 11, 9, 5, 10, 7}));
  EXPECT_EQ(networks::smallest_primitive_root(41), 6);
}

std::vector<double> as_source(const Block& x) {
  std::vector<double> source;
  for (const auto& sample : x) {
    source.push_back(static_cast<double>(sample.re));
    source.push_back(static_cast<double>(sample.im));
  }
  return source;
}

int exponent_of(const gen::Kernel& kernel) {
  return kernel.direction == gen::Direction::kForward ? 1 : -1;
}

// Which samples share a vector is free to choose because it rounds nothing differently.
TEST(ComplexKernels, HaveTheValuesOfThePlainNetwork) {
  for (const gen::Kernel& kernel : dft_complex::kernels_32fc()) {
    if (kernel.bodies == gen::Bodies::kOne) continue;
    gen::Graph graph(kernel.precision);
    std::vector<Complex<gen::Expr>> samples;
    for (int n = 0; n < kernel.length(); ++n) {
      samples.push_back({{&graph, graph.input(2 * n)}, {&graph, graph.input(2 * n + 1)}});
    }
    const gen::Expr zero = {&graph, graph.zero(kernel.precision)};
    networks::OneSample<gen::Expr> form(graph, {zero, zero});
    const auto spectrum = dft_complex::transform_32fc(form, networks::parse_tree(kernel.recipe),
                                                      samples, exponent_of(kernel));
    for (int k = 0; k < kernel.length(); ++k) {
      graph.output(2 * k, spectrum[k].re.value);
      graph.output(2 * k + 1, spectrum[k].im.value);
    }
    const std::vector<double> source = as_source(random_block(kernel.length()));
    EXPECT_EQ(gen::interpret(kernel.graph(), source, 1),
              gen::interpret(gen::fold_products(graph), source, 1))
        << kernel.name;
  }
}

// The values that stand between the stages of a tree, by the definition of the splits; of the first
// stage alone if told so.
void stage_values(const Tree& tree, const Block& x, int exponent, bool first_alone, Block& values) {
  const bool twiddles = tree.kind == Tree::Kind::kCooleyTukey;
  if (!twiddles && tree.kind != Tree::Kind::kPrimeFactor) return;
  const int a = tree.first().length, b = tree.second().length, n = a * b;
  std::vector<Block> rows(a, Block(b));
  for (int j2 = 0; j2 < b; ++j2) {
    Block column(a);
    for (int j1 = 0; j1 < a; ++j1) column[j1] = x[(b * j1 + (twiddles ? 1 : a) * j2) % n];
    const int root = twiddles ? exponent : exponent * b;
    const Block stage = direct_dft(column, root);
    values.insert(values.end(), stage.begin(), stage.end());
    if (!first_alone) stage_values(tree.first(), column, root, false, values);
    for (int k1 = 0; k1 < a; ++k1) {
      const Quad angle = twiddles ? -2 * M_PIq * exponent * j2 * k1 / n : Quad(0);
      rows[k1][j2] = {stage[k1].re * cosq(angle) - stage[k1].im * sinq(angle),
                      stage[k1].re * sinq(angle) + stage[k1].im * cosq(angle)};
    }
  }
  if (first_alone) return;
  for (int k1 = 0; k1 < a; ++k1) {
    values.insert(values.end(), rows[k1].begin(), rows[k1].end());
    stage_values(tree.second(), rows[k1], twiddles ? exponent : exponent * a, false, values);
  }
}

int missing_stage_values(const gen::Kernel& kernel, const Tree& tree, const Block& x,
                         bool first_alone) {
  std::vector<double> held;
  for (const auto& lanes : gen::evaluate(kernel.graph(), as_source(x), 1)) {
    for (double lane : lanes) held.push_back(std::abs(lane));
  }
  std::sort(held.begin(), held.end());
  const auto is_held = [&](Quad value) {
    const double magnitude = std::abs(static_cast<double>(value)), tolerance = 1e-5;
    const auto at = std::lower_bound(held.begin(), held.end(), magnitude - tolerance);
    return at != held.end() && *at < magnitude + tolerance;
  };
  Block values;
  stage_values(tree, x, exponent_of(kernel), first_alone, values);
  int missing = 0;
  for (const auto& value : values) missing += !is_held(value.re) || !is_held(value.im);
  return missing;
}

// A count can't tell PFA(4, 5) from PFA(5, 4); what a kernel computes on its way can.
TEST(ComplexKernels, HoldTheStageValuesOfTheirTree) {
  for (const gen::Kernel& kernel : dft_complex::kernels_32fc()) {
    const Block x = random_block(kernel.length());
    EXPECT_EQ(missing_stage_values(kernel, networks::parse_tree(kernel.recipe), x, false), 0)
        << kernel.name << ": " << kernel.recipe;
    if (kernel.length() == 46 || kernel.length() == 62) {
      const Tree map = networks::parse_tree(kernel.length() == 46 ? "PFA(23, 2)" : "PFA(31, 2)");
      EXPECT_EQ(missing_stage_values(kernel, map, x, false), 0) << kernel.name;
    }
  }
  // Two real sequences at a time: with one of them zero, the other's stages can be seen.
  for (const gen::Kernel& kernel : dft_complex::kernels_64fc()) {
    Block x = random_block(kernel.length());
    for (auto& sample : x) sample.im = 0;
    EXPECT_EQ(missing_stage_values(kernel, networks::parse_tree(kernel.recipe), x, true), 0)
        << kernel.name << ": " << kernel.recipe;
  }
}

}  // namespace
