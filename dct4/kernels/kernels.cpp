#include "dct4/kernels/kernels.h"

#include "dct4/kernels/base_case.h"
#include "dct4/kernels/first_stage.h"
#include "dct4/kernels/second_stage.h"
#include "dct4/kernels/skew_sum.h"
#include "gen/expr.h"

namespace dct4 {
namespace {

using gen::Expr;
using gen::Graph;

// The accessors' numbers.
constexpr int kSource = 0, kTable = 1, kSecondTable = 2;

int lanes_of(gen::Precision precision) { return precision == gen::Precision::kSingle ? 4 : 2; }

class Builder {
 public:
  Builder(const Row& row, gen::Precision precision)
      : row_(row), lanes_(lanes_of(precision)), graph_(precision) {}

  Graph build() {
    switch (row_.kind) {
      case Kind::kFirstStage:
        build_first_stage();
        break;
      case Kind::kSkewSum:
        build_skew_sum();
        break;
      case Kind::kSecondStage:
        build_second_stage();
        break;
      case Kind::kBaseCase:
        build_base_case();
        break;
    }
    return std::move(graph_);
  }

 private:
  Expr fetch(int array, int element) { return {&graph_, graph_.fetch(array, element, lanes_)}; }

  // Pairs of cosines and sines.
  std::vector<Rotation<Expr>> rotations(int array, int count) {
    std::vector<Rotation<Expr>> result;
    for (int i = 0; i < count; ++i) {
      result.push_back({fetch(array, 2 * i), fetch(array, 2 * i + 1)});
    }
    return result;
  }

  void output(int element, const Expr& value) { graph_.output(element, value.value); }

  // Vector s is u[s]; rows 2 q and 2 q + 1 are z[q].
  void build_first_stage() {
    std::vector<Expr> u;
    for (int s = 0; s < row_.size; ++s) u.push_back(fetch(kSource, s));
    const ComplexBlock<Expr> z = first_stage(u, std::span(row_.radices));
    for (int q = 0; q < row_.size / 2; ++q) {
      output(2 * q, z[q].re);
      output(2 * q + 1, z[q].im);
    }
  }

  // Vectors rho and r + rho are the parts of Z[rho]. Vectors 4 a and 4 a + 1 are the parts of Y[a],
  // 4 a + 2 and 4 a + 3 those of the conjugate of Y[r - 1 - a], for a below r / 2.
  void build_skew_sum() {
    const int r = row_.size;
    ComplexBlock<Expr> z;
    for (int rho = 0; rho < r; ++rho) z.push_back({fetch(kSource, rho), fetch(kSource, r + rho)});
    const ComplexBlock<Expr> y =
        r <= 8 ? skew_sum(z, rotations(kTable, r - 1), UpperHalf::kConjugated)
               : skew_sum(z, rotations(kTable, r / 4 - 1), rotations(kSecondTable, r / 4 * 3),
                          UpperHalf::kConjugated);
    for (int a = 0; a < r / 2; ++a) {
      output(4 * a, y[a].re);
      output(4 * a + 1, y[a].im);
      output(4 * a + 2, y[r - 1 - a].re);
      output(4 * a + 3, y[r - 1 - a].im);
    }
  }

  // The source holds a row of d real parts and one of d imaginary parts for each lane, the table
  // the rotations of columns 0, d - 1, 1, d - 2, ...
  void build_second_stage() {
    const int d = row_.size;
    const auto column = [&](int p, int part) {
      std::vector<gen::Lane> picks;
      for (int lane = 0; lane < lanes_; ++lane) {
        picks.push_back({graph_.input((2 * lane + part) * d + p).node, 0});
      }
      return Expr{&graph_, graph_.lanes(picks)};
    };
    const std::vector<Rotation<Expr>> by = rotations(kTable, d);
    ComplexBlock<Expr> z(d);
    for (int i = 0; i < d; ++i) {
      const int p = i % 2 == 0 ? i / 2 : d - 1 - i / 2;
      z[p] = rotate(by[i], Complex<Expr>{column(p, 0), column(p, 1)});
    }
    const std::vector<Expr> o = second_stage(z, std::span(row_.radices), LastSign::kTurned);
    for (int i = 0; i < 2 * d; ++i) output(i, o[i]);
  }

  void build_base_case() {
    std::vector<Expr> x;
    for (int j = 0; j < row_.size; ++j) x.push_back({&graph_, graph_.input(j)});
    const std::vector<Expr> y = base_case(x, std::span(row_.radices));
    for (int k = 0; k < row_.size; ++k) output(k, y[k]);
  }

  const Row& row_;
  const int lanes_;
  Graph graph_;
};

gen::Body describe(const Row& row, gen::Precision precision, bool is_doubled) {
  const bool single = precision == gen::Precision::kSingle;
  const int lanes = lanes_of(precision);
  gen::Body body;
  body.is_doubled = is_doubled;
  body.declared_in = "dct4/bodies.h";
  body.header = single ? "dct4_32f.h" : "dct4_64f.h";
  for (int radix : row.radices) {
    body.recipe += (body.recipe.empty() ? "split by " : ", ") + std::to_string(radix);
  }
  if (row.radices.empty()) body.recipe = "direct";
  const char* templates[] = {"FirstStage", "SkewSum", "SecondStage", "BaseCase"};
  const bool is_scalar = row.kind == Kind::kBaseCase;
  body.name = gen::specialisation(templates[static_cast<int>(row.kind)], precision,
                                  is_scalar ? 1 : (is_doubled ? 2 : 1) * lanes, row.size);
  if (!is_scalar) body.accessors = {"x"};
  if (row.kind == Kind::kSkewSum || row.kind == Kind::kSecondStage) body.accessors.push_back("w");
  if (row.kind == Kind::kSkewSum && row.size > 8) body.accessors.push_back("v");
  if (row.kind == Kind::kSecondStage) body.source_elements = 2 * row.size * lanes;
  body.graph = [row, precision] { return graph(row, precision); };
  return body;
}

}  // namespace

gen::Graph graph(const Row& row, gen::Precision precision) {
  return Builder(row, precision).build();
}

std::vector<gen::Body> bodies(int vector_bits) {
  const bool is_wide = vector_bits == 256;
  std::vector<gen::Body> result;
  for (const gen::Precision precision : {gen::Precision::kSingle, gen::Precision::kDouble}) {
    for (const Row& row : kRows) {
      // Nothing is left over within splits.
      if (!is_wide || row.kind != Kind::kSkewSum) result.push_back(describe(row, precision, false));
      if (is_wide && row.kind != Kind::kBaseCase) result.push_back(describe(row, precision, true));
    }
  }
  return result;
}

std::vector<std::string> entries() {
  std::vector<std::string> result;
  for (const char* type : {"_32f", "_64f"}) {
    for (const char* entry : {"GetSize", "Init", "InitAlloc", "", "Free"}) {
      result.push_back(std::string("zulgDCT4") + entry + type);
    }
  }
  return result;
}

}  // namespace dct4
