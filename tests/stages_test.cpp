// What stands between the stages of the complex kernels: the values of every split of the trees
// that are laid down, those of the forms of prime lengths, and the order of their blocks.
#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>

#include "dft_complex/dft_complex.h"
#include "gen/interpret.h"
#include "tests/quad_dft.h"
#include "tests/sample_sets.h"
#include "tests/scalar_model.h"
#include "tests/tables.h"

namespace {

using networks::Tree;
using Point = Block::value_type;
using Quad = __float128;
using Double = scalar_model::Real<double>;
using Samples = std::vector<scalar_model::Sample<Double>>;

// A run of a kernel, and the magnitudes of all the values that it computes on its way.
class KernelRun {
 public:
  KernelRun(const gen::Kernel& kernel, const Block& x)
      : tolerance_(kernel.is_single() ? 1e-5 : 1e-12) {
    std::vector<double> source;
    for (const Point& p : x) {
      source.insert(source.end(), {static_cast<double>(p.re), static_cast<double>(p.im)});
    }
    for (const auto& lanes : gen::evaluate(kernel.graph(), source, 1)) {
      for (const double lane : lanes) held_.push_back(std::abs(lane));
    }
    std::sort(held_.begin(), held_.end());
  }

  bool holds(Quad value) const {
    const double magnitude = std::abs(static_cast<double>(value));
    const auto at = std::lower_bound(held_.begin(), held_.end(), magnitude - tolerance_);
    return at != held_.end() && *at < magnitude + tolerance_;
  }
  // `folded` allows for a product with the sine of a length-3 stage behind a value.
  int count_missing(const Block& values, bool folded = false) const {
    const auto is_missing = [&](Quad v) {
      return !holds(v) && !(folded && holds(v * sqrtq(3) / 2));
    };
    return static_cast<int>(std::count_if(values.begin(), values.end(), [&](const Point& p) {
      return is_missing(p.re) || is_missing(p.im);
    }));
  }

 private:
  std::vector<double> held_;
  double tolerance_;
};

// What goes into the blocks of a tree and comes out of them, with root exp(-2 pi i e / length).
// Kernels in double precision take real data through them, as which the samples come then.
Block stage_values(const Tree& tree, const Block& x, int e, bool is_single) {
  Block values;
  Samples samples;
  std::vector<Double> reals;
  for (const Point& p : x) {
    samples.push_back({{static_cast<double>(p.re)}, {static_cast<double>(p.im)}});
    reals.push_back(samples.back().re);
  }
  const auto add = [&](const auto& block) {
    for (const auto& v : block) values.push_back({v.v, 0});
  };
  if (is_single) {
    whole(tree, samples, e, [&](const Tree&, const Samples& in, const Samples& out) {
      for (const Samples* block : {&in, &out}) {
        for (const auto& sample : *block) values.push_back({sample.re.v, sample.im.v});
      }
    });
  } else {
    halves(tree, reals, e, scalar_model::Form::kFirstSampleFirst,
           [&](const Tree&, const auto& in, const auto& out) {
             add(in);
             add(out.p);
             add(out.q);
           });
  }
  return values;
}

// Random samples; real ones where the kernel has two real sequences side by side, so that no value
// of one hides behind those of the other.
Block input_of(const gen::Kernel& kernel) {
  Block x = random_block(kernel.length());
  for (Point& p : x) p.im = kernel.is_single() ? p.im : 0;
  return x;
}

int exponent_of(const gen::Kernel& kernel) {
  return kernel.name.starts_with("zulgDFTFwd") ? 1 : -1;
}

const Table composites = read_table("complex.csv"), primes = read_table("complex_primes.csv");

Tree tree_of(const gen::Kernel& kernel, int length) {
  return networks::parse_tree(composites.at(length)[kernel.is_single() ? 0 : 3]);
}

std::vector<gen::Kernel> kernels(const Table& table) {
  std::vector<gen::Kernel> result = dft_complex::kernels();
  std::erase_if(result,
                [&](const gen::Kernel& kernel) { return !table.contains(kernel.length()); });
  return result;
}

TEST(Stages, OfCompositeLengths) {
  for (const gen::Kernel& kernel : kernels(composites)) {
    const Block x = input_of(kernel);
    // The two real sequences are transformed before the direction is chosen.
    const Block values =
        stage_values(tree_of(kernel, kernel.length()), x,
                     kernel.is_single() ? exponent_of(kernel) : 1, kernel.is_single());
    EXPECT_EQ(KernelRun(kernel, x).count_missing(values), 0) << kernel.name;
  }
}

// In Rader's form: the transform A of the permuted samples, by the tree of its length, and its
// product Z with the spectrum of the permuted roots. On real data one half of the bins stands for
// both; at the output side they have the cosine sums and the sine sums.
TEST(Stages, BehindRadersPermutation) {
  for (const gen::Kernel& kernel : kernels(primes)) {
    const int p = kernel.length(), n = p - 1, cell = kernel.is_single() ? 0 : 4;
    if (primes.at(p)[cell].empty()) continue;
    const std::vector<int> g = powers(p);
    const Block x = input_of(kernel);
    Block permuted, roots, values, products;
    for (int m = 0; m < n; ++m) {
      permuted.push_back(x[g[m]]);
      roots.push_back(unit_root(g[(n - m) % n], p));
    }
    Block a = direct_dft(permuted, 1), spectrum = direct_dft(roots, 1);
    if (kernel.is_single()) {
      values = stage_values(tree_of(kernel, n), permuted, 1, true);
    } else {
      a.resize(n / 2);
      const Block bins = direct_dft(x, 1);
      values.insert(values.end(), bins.begin(), bins.begin() + n / 2);
    }
    for (int k = 0; k < static_cast<int>(a.size()); ++k) {
      values.push_back(a[k]);
      const Quad twice = kernel.is_single() || k == 0 ? 1 : 2;
      const Point z = a[k] * Point{twice * spectrum[k].re / n, twice * spectrum[k].im / n};
      products.push_back(k == 0 ? z + x[0] : z);
    }
    const KernelRun run(kernel, x);
    EXPECT_EQ(run.count_missing(values), 0) << kernel.name;
    EXPECT_EQ(run.count_missing(products, !kernel.is_single()), 0) << kernel.name;
  }
}

// In the chirp form: samples times the chirp, their transform, its product with the chirp's
// spectrum, and the inverse transform of that; all with the conjugate root in inverse kernels.
TEST(Stages, OfTheChirpForm) {
  for (const gen::Kernel& kernel : kernels(primes)) {
    const int n = kernel.length(), length = n == 47 ? 96 : 128, e = exponent_of(kernel);
    if (!kernel.is_single() || (n != 47 && n != 59)) continue;
    const Block x = random_block(n);
    Block a(length), b(length), values;
    for (int i = 0; i < n; ++i) {
      const Point w = unit_root(e * ((n + 1) / 2 * i * i % n), n);
      a[i] = x[i] * w;
      b[i] = b[(length - i) % length] = {w.re / length, -w.im / length};
    }
    Block z = direct_dft(a, e), spectrum = direct_dft(b, e);
    values = a;
    values.insert(values.end(), z.begin(), z.end());
    for (int k = 0; k < length; ++k) values.push_back(z[k] = z[k] * spectrum[k]);
    const Block y = direct_dft(z, -e);
    values.insert(values.end(), y.begin(), y.begin() + n);
    EXPECT_EQ(KernelRun(kernel, x).count_missing(values), 0) << kernel.name;
  }
}

// Whether, one block after the other, all values that a block has put together are there.
bool has_blocks(const SampleSets& sets, const std::vector<SampleSet>& places,
                const std::string& blocks, bool from_behind = false) {
  std::istringstream in(blocks);
  std::vector<int> sizes{std::istream_iterator<int>(in), {}};
  if (from_behind) std::reverse(sizes.begin(), sizes.end());
  const std::set<int> complete = complete_cosets(places, sets);
  int size = 1;
  for (const int block : sizes) {
    size *= block;
    if (size < static_cast<int>(places.size()) && !complete.contains(size)) return false;
  }
  return size > 1;
}

TEST(Stages, OfPrimeLengthsHaveTheirBlocksInOrder) {
  for (const gen::Kernel& kernel : kernels(primes)) {
    const auto& row = primes.at(kernel.length());
    const int cell = kernel.is_single() ? 0 : 4;
    if (row[cell].empty()) continue;
    const gen::Graph graph = kernel.graph();
    const std::vector<SampleSet> places = permuted(single_places(kernel.length()));
    EXPECT_TRUE(has_blocks(sample_sets(graph, false, 2), places, row[cell])) << kernel.name;
    EXPECT_TRUE(has_blocks(sample_sets(graph, true, 2), places, row[cell + 1], true))
        << kernel.name;
  }
}

// What a value depends on, in the place of a number.
struct Support {
  SampleSet set = 0;

  friend Support operator+(Support a, Support b) { return {a.set | b.set}; }
  friend Support operator-(Support a, Support b) { return {a.set | b.set}; }
  friend Support operator*(Quad, Support a) { return a; }
  friend Support narrow(Support a) { return a; }
};

TEST(Stages, OfPrimeBlocksInCompositeLengths) {
  for (const gen::Kernel& kernel : kernels(composites)) {
    const int n = kernel.length();
    Tree tree = tree_of(kernel, n);
    // In these the second block takes its samples in natural order.
    if (kernel.is_single() && (n == 46 || n == 62)) tree.kind = Tree::Kind::kCooleyTukey;
    const SampleSets sets = sample_sets(kernel.graph(), false, 2);
    std::vector<scalar_model::Sample<Support>> x;
    for (const SampleSet set : single_places(n)) x.push_back({{set}, {set}});
    whole(tree, x, 1, [&](const Tree& block, const auto& in, const auto&) {
      if (block.kind != Tree::Kind::kLeaf || block.length < 13) return;
      std::vector<SampleSet> places;
      for (const auto& sample : in) places.push_back(sample.re.set);
      const auto& row = primes.at(block.length);
      EXPECT_TRUE(has_blocks(sets, permuted(places), row[0]) ||
                  has_blocks(sets, permuted(places), row[4]))
          << kernel.name;
    });
  }
}

}  // namespace
