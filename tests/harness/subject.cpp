#include "tests/harness/subject.h"

#include <cmath>
#include <limits>
#include <ostream>

namespace harness {

double Subject::scale(zulgScaleFlag flag) const {
  const double n = kernel.length;
  const bool by_n =
      (flag == ZULG_SCALE_FWD_BY_N && kernel.scale_rule != gen::ScaleRule::kInverse) ||
      (flag == ZULG_SCALE_INV_BY_N && kernel.scale_rule != gen::ScaleRule::kForward);
  const double factor = flag == ZULG_SCALE_BY_SQRT_N ? 1.0 / std::sqrt(n) : by_n ? 1.0 / n : 1.0;
  return kernel.precision == gen::Precision::kSingle ? static_cast<float>(factor) : factor;
}

void PrintTo(const Subject& subject, std::ostream* out) { *out << subject.kernel.name; }

std::vector<double> load_elements(const Subject& subject, const void* memory, int count) {
  std::vector<double> values(count);
  if (subject.kernel.precision == gen::Precision::kDouble) {
    std::memcpy(values.data(), memory, count * sizeof(double));
    return values;
  }
  std::vector<float> single(count);
  std::memcpy(single.data(), memory, count * sizeof(float));
  return {single.begin(), single.end()};
}

void store_elements(const Subject& subject, const std::vector<double>& values, void* memory) {
  if (subject.kernel.precision == gen::Precision::kDouble) {
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

std::vector<double> make_input(const Subject& subject, Data data, unsigned seed) {
  const bool single = subject.kernel.precision == gen::Precision::kSingle;
  std::mt19937 random(seed);
  std::uniform_real_distribution<double> uniform(-1, 1);
  std::vector<double> values(subject.kernel.source_elements);
  for (double& value : values) {
    value = uniform(random);
    if (data == Data::kWild) {
      const int kind = static_cast<int>(random() % 8);
      const int octaves = static_cast<int>(random() % 60) - 30;
      value = kind == 0 ? value * (single ? 1e-40 : 1e-310) : std::ldexp(value, octaves);
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
