#include "tests/harness/subject.h"

#include <cmath>
#include <cstring>
#include <limits>
#include <random>

namespace harness {

std::vector<double> load_elements(const Shape& shape, const void* memory, int count) {
  std::vector<double> values(count);
  if (!shape.is_single()) {
    std::memcpy(values.data(), memory, count * sizeof(double));
    return values;
  }
  std::vector<float> single(count);
  std::memcpy(single.data(), memory, count * sizeof(float));
  return {single.begin(), single.end()};
}

void store_elements(const Shape& shape, const std::vector<double>& values, void* memory) {
  if (!shape.is_single()) {
    std::memcpy(memory, values.data(), values.size() * sizeof(double));
    return;
  }
  const std::vector<float> single(values.begin(), values.end());
  std::memcpy(memory, single.data(), single.size() * sizeof(float));
}

bool same_bits(const std::vector<double>& a, const std::vector<double>& b) {
  if (a.size() != b.size()) return false;
  for (std::size_t i = 0; i < a.size(); ++i) {
    if (std::isnan(a[i]) && std::isnan(b[i])) continue;
    if (std::memcmp(&a[i], &b[i], sizeof a[i]) != 0) return false;
  }
  return true;
}

std::vector<double> make_input(const Shape& shape, Data data, unsigned seed) {
  const bool single = shape.is_single();
  std::mt19937 random(seed);
  std::vector<double> values(shape.source_elements);
  for (double& value : values) {
    value = random() * 0x1p-31 - 1;
    if (data == Data::kWild) {
      const int kind = static_cast<int>(random() % 8);
      const int octaves = static_cast<int>(random() % 60) - 30;
      value = kind == 0 ? value * (single ? 0x1p-130 : 0x1p-1030) : std::ldexp(value, octaves);
    }
    if (data == Data::kSparse && random() % 4 != 0) value = random() % 2 == 0 ? 0.0 : -0.0;
    if (single) value = static_cast<float>(value);
  }
  if (data == Data::kNotFinite) {
    values[random() % values.size()] = std::numeric_limits<double>::infinity();
    values[random() % values.size()] = std::numeric_limits<double>::quiet_NaN();
  }
  return values;
}

}  // namespace harness
