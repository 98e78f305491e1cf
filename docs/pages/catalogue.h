// What the pages tell: every kernel by whose definition the others of its family are defined, with
// its arithmetic and its measured figures.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "docs/pages/figures.h"
#include "gen/count.h"
#include "gen/kernel.h"

namespace pages {

// The transforms that exist at every length from 2 to 64. The other layouts of the real transforms
// hold the arithmetic of CCS.
enum class Transform { kComplexForward, kComplexInverse, kRealForward, kRealInverse, kHartley };
inline constexpr Transform kTransforms[] = {Transform::kComplexForward, Transform::kComplexInverse,
                                            Transform::kRealForward, Transform::kRealInverse,
                                            Transform::kHartley};
inline constexpr gen::Precision kPrecisions[] = {gen::Precision::kSingle, gen::Precision::kDouble};

// "Real DFT, inverse".
std::string title(Transform transform);
// "Real, inverse".
std::string short_title(Transform transform);
// "single", "double".
std::string title(gen::Precision precision);

struct Entry {
  gen::Kernel kernel;
  gen::Counts counts;
  std::optional<double> error;  // in units of u
  Speed speed;
};

using Key = std::pair<Transform, gen::Precision>;

struct Catalogue {
  std::map<int, std::map<Key, Entry>> by_length;
  std::vector<Entry> walsh_hadamard;
  bool has_dct4 = false;
  Figures figures;

  const Entry& at(int length, Transform transform, gen::Precision precision) const {
    return by_length.at(length).at({transform, precision});
  }
};

// From the manifest. Throws std::runtime_error if a transform is missing at a length.
Catalogue make_catalogue(Figures figures);

// "2 · 2 · 3"; a prime as it stands.
std::string factors(int length);
bool is_prime(int length);

}  // namespace pages
