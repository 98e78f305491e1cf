// The constants of the kernels: exact values, rounded once.
#include <gtest/gtest.h>

#include <set>

#include "generate/manifest.h"
#include "tests/quad_dft.h"
#include "tests/sample_sets.h"

namespace {

using Quad = __float128;

// What the kernels of one length may multiply by, as they are rounded to double.
class Constants {
 public:
  explicit Constants(int n) {
    for (const Quad value : {Quad(2), Quad(0.25), sqrtq(5) / 4}) add(value);
    add_length(n);
    if (n != 47 && n != 59) return;
    const int length = n == 47 ? 96 : 128;
    Block chirp(length);
    for (int i = 0; i < n; ++i) {
      chirp[i] = chirp[(length - i) % length] = unit_root(-((n + 1) / 2 * i * i % n), n);
    }
    add_spectrum(chirp, 1);
    add_length(length);
  }
  bool hold(Quad value) const { return values_.contains(magnitude(value)); }

 private:
  // Without the zeros' noise.
  static double magnitude(Quad value) {
    return fabsq(value) < 1e-30Q ? 0 : static_cast<double>(fabsq(value));
  }
  // Also behind another product: sine and cosine of a length-3 stage, a doubled element.
  void add(Quad value) {
    for (const Quad factor : {Quad(1), Quad(2), sqrtq(3) / 2, sqrtq(3), Quad(0.5), Quad(0.75)}) {
      values_.insert(magnitude(value * factor));
    }
  }
  // Twiddle factors, and what Rader's form of a prime factor takes.
  void add_length(int n) {
    if (n < 2 || !lengths_.insert(n).second) return;
    for (int k = 0; k < 4 * n; ++k) add(unit_root(k, 4 * n).re);
    for (const int p : {7, 11, 13, 17, 19, 23, 29, 31, 37, 41, 43, 47, 53, 59, 61}) {
      if (n % p != 0) continue;
      Block roots;
      for (const int power : powers(p)) roots.push_back(unit_root(power, p));
      // Outputs of 13 may be shifted by up to two places.
      add_spectrum(roots, p == 13 ? 3 : 1);
      add_length(p - 1);
    }
  }
  void add_spectrum(const Block& roots, int shifts) {
    const int n = static_cast<int>(roots.size());
    const Block spectrum = direct_dft(roots, 1);
    for (int k = 0; k < n * shifts; ++k) {
      const auto turned = spectrum[k % n] * unit_root(-(k / n) * (k % n), n);
      add(turned.re / n);
      add(turned.im / n);
      add(2 * turned.re / n);
      add(2 * turned.im / n);
    }
  }

  std::set<double> values_;
  std::set<int> lengths_;
};

TEST(Constants, AreExactValuesRoundedOnce) {
  std::map<int, Constants> known;
  for (const gen::Kernel& kernel : generate::all_kernels()) {
    if (kernel.transform == gen::Transform::kWalshHadamard) continue;
    const Constants& constants = known.try_emplace(kernel.length(), kernel.length()).first->second;
    const gen::Graph graph = kernel.graph();
    for (const gen::Number& number : graph.numbers()) {
      EXPECT_TRUE(constants.hold(number.value())) << kernel.name << ": " << number.name();
    }
  }
}

}  // namespace
