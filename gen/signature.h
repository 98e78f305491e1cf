// What tells the kernels apart: the transform, its direction, the layout of a packed spectrum, the
// sample type and the length. Names are composed here, and nowhere taken apart again.
#pragma once

#include <string>

#include "gen/graph.h"

namespace gen {

enum class Transform { kComplexDft, kRealDft, kHartley, kWalshHadamard };
enum class Direction { kForward, kInverse, kSelfInverse };
// Of the spectrum of real samples.
enum class Layout { kNone, kCcs, kPack, kPerm };

struct Signature {
  Transform transform = Transform::kComplexDft;
  Direction direction = Direction::kForward;
  Layout layout = Layout::kNone;
  Precision precision = Precision::kSingle;
  int number = 0;  // as the name tells it: the length, or the order of a Walsh-Hadamard transform

  // The length N of the transform.
  int length() const { return transform == Transform::kWalshHadamard ? 1 << number : number; }
  bool is_single() const { return precision == Precision::kSingle; }
  friend auto operator<=>(const Signature&, const Signature&) = default;
};

// "CCS", "Pack", "Perm".
std::string name_of(Layout layout);
// "32fc", "64f": the samples' type, as names end.
std::string type_of(const Signature& signature);
// "zulgDFTFwd_RToCCS_12_32f".
std::string name_of(const Signature& signature);
// The same without the number: the entry that takes it at run time.
std::string entry_name_of(const Signature& signature);
// The name by which the library itself reaches an exported function, whoever exports that name too.
std::string hidden_name(const std::string& exported);
// "dft_real_32f": the source files that kernels go to.
std::string family_of(const Signature& signature);

}  // namespace gen
