// What the checks of compiled kernels are run on: a function of a library, and what it works on.
#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <vector>

#include "generate/contents.h"
#include "zulgen.h"

namespace harness {

// Kernels without a work buffer don't look for one; long Walsh-Hadamard orders help themselves.
using KernelFunction = zulgResult (*)(const void* source, void* destination, zulgScaleFlag flag,
                                      void* work);

// What a kernel works on.
struct Shape : generate::KernelLine {
  std::size_t source_bytes() const { return std::size_t(source_elements) * element_size; }
  std::size_t destination_bytes() const { return std::size_t(destination_elements) * element_size; }
  // The room that an array needs to be source and destination at once.
  std::size_t shared_bytes() const { return std::max(source_bytes(), destination_bytes()); }
};

struct Subject : Shape {
  KernelFunction function = nullptr;
};

// What is wrong, in words; nothing is.
using Findings = std::vector<std::string>;

inline constexpr zulgScaleFlag kFlags[] = {ZULG_SCALE_FWD_BY_N, ZULG_SCALE_INV_BY_N,
                                           ZULG_SCALE_BY_SQRT_N, ZULG_SCALE_NONE};

// Elements as numbers, from and to memory of any alignment.
std::vector<double> load_elements(const Shape& shape, const void* memory, int count);
void store_elements(const Shape& shape, const std::vector<double>& values, void* memory);

// Equal bit for bit; a NaN equals any NaN, since its payload tells which operand came first.
bool same_bits(const std::vector<double>& a, const std::vector<double>& b);

// Inputs for a kernel, exact in its precision, and the same in every program.
enum class Data {
  kUniform,   // in [-1, 1)
  kWild,      // magnitudes over many octaves, subnormal numbers
  kSparse,    // mostly zeros of either sign
  kNotFinite  // with an infinity and a NaN
};
inline constexpr Data kAllData[] = {Data::kUniform, Data::kWild, Data::kSparse, Data::kNotFinite};
std::vector<double> make_input(const Shape& shape, Data data, unsigned seed);

}  // namespace harness
