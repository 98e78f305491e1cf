// What the kernel checks are run on: a row of the manifest and the function to try.
#pragma once

#include <cstddef>
#include <cstring>
#include <random>
#include <string>
#include <vector>

#include "gen/kernel.h"
#include "zulgen.h"

namespace harness {

using KernelFunction = zulgResult (*)(const void* source, void* destination, zulgScaleFlag flag);

struct Subject {
  gen::Kernel kernel;
  KernelFunction function;

  std::size_t element_size() const {
    return kernel.precision == gen::Precision::kSingle ? sizeof(float) : sizeof(double);
  }
  std::size_t source_bytes() const { return kernel.source_elements * element_size(); }
  std::size_t destination_bytes() const { return kernel.destination_elements * element_size(); }
  // The room that an array needs to be source and destination at once.
  std::size_t shared_bytes() const { return std::max(source_bytes(), destination_bytes()); }

  // The factor that the flag selects.
  double scale(zulgScaleFlag flag) const;
};

// For readable test output.
void PrintTo(const Subject& subject, std::ostream* out);

// What is wrong, in words; nothing is.
using Findings = std::vector<std::string>;

// Elements of the kernel's precision as numbers, from and to memory of any alignment.
std::vector<double> load_elements(const Subject& subject, const void* memory, int count);
void store_elements(const Subject& subject, const std::vector<double>& values, void* memory);

// Equal bit for bit; a NaN equals any NaN, since its payload tells which operand came first.
bool same_bits(const std::vector<double>& a, const std::vector<double>& b);

// Inputs for a kernel, exact in its precision. Seeds are fixed.
enum class Data {
  kUniform,   // in [-1, 1]
  kWild,      // magnitudes over many octaves, subnormal numbers
  kSparse,    // mostly zeros of either sign
  kNotFinite  // with an infinity and a NaN
};
std::vector<double> make_input(const Subject& subject, Data data, unsigned seed);

}  // namespace harness
