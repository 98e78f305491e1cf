// Decomposition trees: how a transform of composite length is put together from shorter ones.
//
//   CT(a, b)   Cooley-Tukey split of a block of length a * b, twiddle factors between the stages
//   PFA(a, b)  prime-factor (Good-Thomas) split, a and b coprime, no twiddle factors
//   7          a leaf: a block of that length in its short form
//
// The first argument is the stage that touches the input. 4 is the radix-4 block CT(2, 2).
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace networks {

struct Tree {
  enum class Kind { kLeaf, kCooleyTukey, kPrimeFactor };
  Kind kind = Kind::kLeaf;
  int length = 1;
  std::vector<Tree> parts;  // none, or first and second stage

  const Tree& first() const { return parts[0]; }
  const Tree& second() const { return parts[1]; }
};

// Throws std::invalid_argument if the text is not a tree, or a PFA's lengths aren't coprime.
Tree parse_tree(std::string_view text);
std::string to_string(const Tree& tree);

}  // namespace networks
