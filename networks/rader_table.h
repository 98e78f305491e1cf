// How transforms of prime length are carried back to composite ones: Rader's form for data whose
// parts are real sequences. With n = p - 1 and g a primitive root modulo p, the input in the order
// of the powers of g goes through a real DFT of length n, its bins are multiplied by constants, and
// of the bins' inverse transform the even and the odd half give the real and the imaginary parts.
//
// C. M. Rader, "Discrete Fourier transforms when the number of data samples is prime", Proc. IEEE
// 56 (1968).
#pragma once

#include <map>
#include <string>
#include <vector>

#include "gen/number.h"
#include "networks/tree.h"

namespace networks {

struct RaderRecipe {
  Tree input;  // real() of length n
  Tree even;   // real() of length n / 2, to be mirrored
  Tree odd;    // odd() of length n / 2, to be mirrored
  // The constants are those of the output shifted by this many places, turned by that many n-th of
  // a turn a bin.
  int turn = 0;
  // Whether turns by 45 degrees in the odd half are done the other way round (turn.h).
  bool odd_diagonal_reversed = false;

  int prime() const { return input.length + 1; }
};

// Recipes by the leaves that they stand for, such as "13" and "13x".
class RaderTable {
 public:
  struct Row {
    const char* leaf;
    const char* input;
    const char* even;
    const char* odd;
    int turn = 0;
    bool odd_diagonal_reversed = false;
  };
  // `name` is what messages call the table. Throws std::invalid_argument that names it, the row and
  // the reason if a recipe doesn't fit its leaf.
  RaderTable(const std::string& name, const std::vector<Row>& rows);

  // Whether there is a form of the leaf, here or in the networks themselves.
  bool knows(const Tree& leaf) const;
  // Null if the leaf isn't in Rader's form.
  const RaderRecipe* find(const Tree& leaf) const;

 private:
  std::map<std::string, RaderRecipe> recipes_;
};

bool is_prime(int n);
// Throws std::invalid_argument if it is no prime.
int smallest_primitive_root(int prime);

// powers[m] = g^m mod p, m = 0..p - 2, for the smallest primitive root g.
std::vector<int> root_powers(int prime);

// S[k] = 1/n sum over t of h[t] exp(-2 pi i t k / n) with h[t] = exp(-2 pi i g^-t / p), for k from
// 0 to n - 1, turned by `turn` * k / n of a turn. The convolution theorem's constants of Rader's
// form, the division by n included.
std::vector<gen::ComplexNumber> rader_spectrum(int prime, int turn);

}  // namespace networks
