// Decomposition trees: how a transform is put together from shorter ones.
//
//   CT(a, b)    Cooley-Tukey split of a block of length a * b, twiddle factors between the stages
//   PFA(a, b)   prime-factor (Good-Thomas) split, a and b coprime, no twiddle factors
//   7, 11r      a leaf: a block of that length, in the form that the letters name
//
// The first argument is the stage that touches the input. 4 is the radix-4 block CT(2, 2). Networks
// on real data (real_dft.h) know more kinds:
//
//   alt(t)      t with alternating signs of its input
//   Z(t), Zc(t) a real sequence of even length folded into a complex one of half the length, for t;
//               t runs on real and imaginary parts by themselves, or on complex values (Zc)
//   split(s, t) sums and differences of the two halves; s takes the former, t the latter
//   by(s, t, u) s on real data, t on complex data, u between the bins
//   mirror(t)   on complex data, the mirror image of t with the conjugate root (mirror.h)
//   fold(t)     t with products of products folded into one constant
//
// A whole complex transform of prime length p is one of
//
//   Rader(s, t) Rader's form (complex_rader.h): transforms of length p - 1, s forward, t inverse
//   chirp(t)    the chirp form (chirp.h): t is longer than 2 p, and doesn't tell the length p
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace networks {

struct Tree {
  enum class Kind {
    kLeaf,
    kCooleyTukey,
    kPrimeFactor,
    kAlternating,
    kFolded,
    kFoldedComplex,
    kSplit,
    kByData,
    kMirrored,
    kProductsFolded,
    kRader,
    kChirp
  };
  Kind kind = Kind::kLeaf;
  int length = 1;
  std::string form;         // of a leaf: the letters behind its length
  std::vector<Tree> parts;  // in the order of the notation

  const Tree& first() const { return parts[0]; }
  const Tree& second() const { return parts[1]; }
};

// Throws std::invalid_argument if the text is not a tree, or a PFA's lengths aren't coprime.
Tree parse_tree(std::string_view text);
std::string to_string(const Tree& tree);

}  // namespace networks
