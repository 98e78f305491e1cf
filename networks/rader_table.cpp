#include "networks/rader_table.h"

#include <stdexcept>

namespace networks {

using gen::ComplexNumber;
using gen::Number;
using gen::Quad;

RaderTable::RaderTable(const std::vector<Row>& rows) {
  for (const Row& row : rows) {
    RaderRecipe recipe{parse_tree(row.input), parse_tree(row.even), parse_tree(row.odd), row.turn,
                       row.odd_diagonal_reversed};
    const Tree leaf = parse_tree(row.leaf);
    if (recipe.prime() != leaf.length || 2 * recipe.even.length + 1 != leaf.length ||
        recipe.odd.length != recipe.even.length) {
      throw std::invalid_argument("lengths don't fit in the recipe of " + to_string(leaf));
    }
    recipes_.emplace(row.leaf, std::move(recipe));
  }
}

const RaderRecipe* RaderTable::find(const Tree& leaf) const {
  const auto recipe = recipes_.find(to_string(leaf));
  return recipe == recipes_.end() ? nullptr : &recipe->second;
}

int smallest_primitive_root(int prime) {
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
