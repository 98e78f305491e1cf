// What the pages tell: every kernel by whose definition the others of its family are defined, with
// its arithmetic, how it is written down for each target, and its measured figures.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "docs/pages/figures.h"
#include "gen/cost.h"
#include "gen/count.h"
#include "gen/kernel.h"
#include "generate/target.h"

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

// A kernel's statements in one target's library: instructions, loads and stores left out, and their
// order.
struct Written {
  std::string target;
  gen::VectorOperations operations;
  std::string order;
};

struct Entry {
  gen::Kernel kernel;
  gen::Counts counts;
  std::optional<double> error;   // in units of u
  std::vector<Written> written;  // in the order of the targets; none if it is written by hand
};

using Key = std::pair<Transform, gen::Precision>;

struct Catalogue {
  std::map<int, std::map<Key, Entry>> by_length;
  std::vector<Entry> walsh_hadamard;
  std::vector<int> dct4_lengths;  // those that are measured
  Figures figures;

  const Entry& at(int length, Transform transform, gen::Precision precision) const {
    return by_length.at(length).at({transform, precision});
  }
};

// From the manifest. Throws std::runtime_error if a transform is missing at a length.
Catalogue make_catalogue(Figures figures, const std::vector<generate::Target>& targets);

// Functions that differ in their lengths alone.
struct Group {
  std::string transform;
  gen::Precision precision;
  std::vector<std::pair<int, std::string>> functions;  // by length
};
std::vector<Group> groups(const Catalogue& catalogue);

// "zulgDCT4_32f_64", as the figures call one length.
std::string dct4_name(gen::Precision precision, int length);

// "2 · 2 · 3"; a prime as it stands.
std::string factors(int length);
bool is_prime(int length);

}  // namespace pages
