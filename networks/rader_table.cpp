#include "networks/rader_table.h"

#include <set>
#include <stdexcept>

namespace networks {

using gen::ComplexNumber;
using gen::Number;
using gen::Quad;

namespace {

// The first leaf of the tree that no form is known of.
const Tree* unknown_leaf(const RaderTable& table, const Tree& tree) {
  if (tree.kind == Tree::Kind::kLeaf) return table.knows(tree) ? nullptr : &tree;
  for (const Tree& part : tree.parts) {
    if (const Tree* const leaf = unknown_leaf(table, part)) return leaf;
  }
  return nullptr;
}

}  // namespace

RaderTable::RaderTable(const std::string& name, const std::vector<Row>& rows) {
  const auto fail = [&](const Row& row, const std::string& reason) {
    throw std::invalid_argument(name + ", row " + row.leaf + ": " + reason);
  };
  for (const Row& row : rows) {
    try {
      RaderRecipe recipe{parse_tree(row.input), parse_tree(row.even), parse_tree(row.odd), row.turn,
                         row.odd_diagonal_reversed};
      const Tree leaf = parse_tree(row.leaf);
      if (!is_prime(leaf.length)) fail(row, "not a prime");
      if (recipe.prime() != leaf.length || 2 * recipe.even.length + 1 != leaf.length ||
          recipe.odd.length != recipe.even.length) {
        fail(row, "the recipe is of another length");
      }
      if (!recipes_.emplace(row.leaf, std::move(recipe)).second) fail(row, "there are two");
    } catch (const std::invalid_argument& error) {
      if (std::string(error.what()).starts_with(name)) throw;
      fail(row, error.what());
    }
  }
  for (const Row& row : rows) {
    const RaderRecipe& recipe = recipes_.at(row.leaf);
    for (const Tree* tree : {&recipe.input, &recipe.even, &recipe.odd}) {
      const Tree* const leaf = unknown_leaf(*this, *tree);
      if (leaf != nullptr) fail(row, "no form of " + to_string(*leaf));
    }
  }
}

bool RaderTable::knows(const Tree& leaf) const {
  static const std::set<std::string> kForms = {"2", "3", "3n", "4", "4s", "5", "5w", "7", "11"};
  return kForms.contains(to_string(leaf)) || find(leaf) != nullptr;
}

const RaderRecipe* RaderTable::find(const Tree& leaf) const {
  const auto recipe = recipes_.find(to_string(leaf));
  return recipe == recipes_.end() ? nullptr : &recipe->second;
}

bool is_prime(int n) {
  for (int p = 2; p * p <= n; ++p) {
    if (n % p == 0) return false;
  }
  return n >= 2;
}

int smallest_primitive_root(int prime) {
  if (!is_prime(prime)) throw std::invalid_argument(std::to_string(prime) + " is no prime");
  for (int g = 2;; ++g) {
    int power = g, order = 1;
    for (; power != 1; power = power * g % prime) ++order;
    if (order == prime - 1) return g;
  }
}

std::vector<int> root_powers(int prime) {
  const int g = smallest_primitive_root(prime);
  std::vector<int> powers;
  for (int m = 0, power = 1; m < prime - 1; ++m, power = power * g % prime) powers.push_back(power);
  return powers;
}

std::vector<ComplexNumber> rader_spectrum(int prime, int turn) {
  const int n = prime - 1;
  const std::vector<int> powers = root_powers(prime);
  std::vector<ComplexNumber> spectrum;
  for (int k = 0; k <= n / 2; ++k) {
    Quad re = 0, im = 0;
    for (int t = 0; t < n; ++t) {
      // -g^-t / p of a turn, and (turn - t) k / n of another.
      const long turns = -static_cast<long>(powers[(n - t) % n]) * n + (turn - t) * k * prime;
      const ComplexNumber root = gen::unit_root(turns, static_cast<long>(prime) * n);
      re += root.re.value();
      im += root.im.value();
    }
    const std::string name = "S" + std::to_string(prime) + "_" + std::to_string(k) +
                             (turn == 0 ? "" : "_turned_" + std::to_string(turn));
    spectrum.push_back({Number(re / n, name + "_re"), Number(im / n, name + "_im")});
  }
  // Even bins belong to a real sequence, odd ones to an imaginary one.
  for (int k = n / 2 + 1; k < n; ++k) {
    const ComplexNumber& s = spectrum[n - k];
    spectrum.push_back(k % 2 == 0 ? ComplexNumber{s.re, -s.im} : ComplexNumber{-s.re, s.im});
  }
  return spectrum;
}

}  // namespace networks
