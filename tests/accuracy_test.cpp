// How near every kernel's data flow comes to the definition of its transform. Compiled kernels have
// the bits of their data flows, so this holds for all of them.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <fstream>
#include <random>

#include "dft_complex/dft_complex.h"
#include "tests/graph_runs.h"
#include "tests/references.h"

namespace {

int largest_prime_factor(int n) {
  int largest = 1;
  for (int p = 2; n > 1; ++p) {
    for (; n % p == 0; n /= p) largest = p;
  }
  return largest;
}

// The largest relative L2 error over random inputs, in units of u. A stage of short blocks rounds
// every value about three times, at 0.4 u each and independently: 0.7 u a stage, and up to four
// stages in a composite length. Rader's form has the stages of the length below twice, and a
// product between them; at 47 and 59 it is nested in itself, or the chirp form takes twice the
// stages of a length above the double. On real data, single precision keeps the sums of products in
// double and rounds every value about twice a stage: 0.5 u.
double error_bound(const gen::Kernel& kernel) {
  const int n = kernel.length(), prime = largest_prime_factor(n);
  // A stage rounds every value once, by an error that is spread evenly over 2 u times a power of
  // two below the value: at most u / sqrt(3) of it on average. Errors of stages add up in squares.
  if (kernel.transform == gen::Transform::kWalshHadamard) return std::sqrt(std::log2(n) / 3);
  const bool is_complex = kernel.transform == gen::Transform::kComplexDft;
  const bool sums_are_double = !is_complex && kernel.is_single();
  if (prime <= 11 && (n != prime || prime <= 5)) return sums_are_double ? 1.5 : 1.7;
  if (sums_are_double) return 2.0;
  if (n == 47 || n == 59) return 4.0;
  return n == prime ? 2.5 : 2.25;
}

// Samples in [-1, 1) with as many bits as the precision has: of fewer, double sums would be exact.
std::vector<double> uniform_samples(const harness::Shape& shape, unsigned seed) {
  std::mt19937_64 random(seed);
  std::vector<double> samples(shape.source_elements);
  for (double& sample : samples) {
    sample = random() * 0x1p-63 - 1;
    if (shape.is_single()) sample = static_cast<float>(sample);
  }
  return samples;
}

// Over many uniform inputs, in units of the precision's rounding error u (2^-24 or 2^-53).
double relative_error(const gen::Kernel& kernel) {
  constexpr int kInputs = 100;
  const GraphRuns graph(kernel);
  const references::Reference reference = references::of(kernel);
  gen::Quad error = 0, norm = 0;
  for (unsigned seed = 0; seed < kInputs; ++seed) {
    const std::vector<double> input = uniform_samples(graph.shape(), seed);
    const std::vector<double> output = graph.run(input, ZULG_SCALE_NONE);
    const std::vector<gen::Quad> exact = reference(input);
    for (std::size_t i = 0; i < exact.size(); ++i) {
      error += (output[i] - exact[i]) * (output[i] - exact[i]);
      norm += exact[i] * exact[i];
    }
  }
  return std::sqrt(static_cast<double>(error / norm)) / (kernel.is_single() ? 0x1p-24 : 0x1p-53);
}

// Every error goes to a file, if one is named, for the tables of figures.
TEST(Kernels, AreAccurate) {
  const char* const file = std::getenv("ZULGEN_ERROR_CSV");
  std::ofstream csv(file != nullptr ? file : "/dev/null");
  csv << "function,error_in_u\n";
  for (const gen::Kernel& kernel : generate::all_kernels()) {
    // These are defined by CCS.
    if (kernel.layout == gen::Layout::kPack || kernel.layout == gen::Layout::kPerm) continue;
    const double error = relative_error(kernel);
    EXPECT_LE(error, error_bound(kernel)) << kernel.name;
    csv << kernel.name << "," << error << "\n";
  }
}

// In Rader's form x[0] reaches every other bin through one addition, and the direct forms add it as
// it stands: an impulse there comes out unrounded.
TEST(Kernels, KnowImpulses) {
  for (const gen::Kernel& kernel : dft_complex::kernels()) {
    const GraphRuns graph(kernel);
    const double u = kernel.is_single() ? 0x1p-24 : 0x1p-53;
    const double tolerance = kernel.recipe.starts_with("chirp") ? 8 * u : 0;
    std::vector<double> source(2 * kernel.length()), destination;
    source[0] = 1;
    destination = graph.run(source, ZULG_SCALE_NONE);
    for (int k = 0; k < kernel.length(); ++k) {
      EXPECT_NEAR(destination[2 * k], 1, tolerance) << kernel.name << " " << k;
      EXPECT_NEAR(destination[2 * k + 1], 0, tolerance) << kernel.name << " " << k;
    }
  }
}

}  // namespace
