#include "gen/signature.h"

namespace gen {
namespace {

// The name up to the number.
std::string stem_of(const Signature& signature) {
  switch (signature.transform) {
    case Transform::kHartley:
      return "zulgHartley";
    case Transform::kWalshHadamard:
      return "zulgWHT";
    default:
      break;
  }
  const bool forward = signature.direction == Direction::kForward;
  const std::string stem = forward ? "zulgDFTFwd_" : "zulgDFTInv_";
  if (signature.transform == Transform::kComplexDft) return stem + "CToC";
  const std::string layout = name_of(signature.layout);
  return stem + (forward ? "RTo" + layout : layout + "ToR");
}

}  // namespace

std::string name_of(Layout layout) {
  switch (layout) {
    case Layout::kCcs:
      return "CCS";
    case Layout::kPack:
      return "Pack";
    case Layout::kPerm:
      return "Perm";
    default:
      return "";
  }
}

std::string type_of(const Signature& signature) {
  return std::string(signature.is_single() ? "32f" : "64f") +
         (signature.transform == Transform::kComplexDft ? "c" : "");
}

std::string name_of(const Signature& signature) {
  return stem_of(signature) + "_" + std::to_string(signature.number) + "_" + type_of(signature);
}

std::string entry_name_of(const Signature& signature) {
  return stem_of(signature) + "_" + type_of(signature);
}

std::string hidden_name(const std::string& exported) { return "owng" + exported.substr(4); }

std::string family_of(const Signature& signature) {
  static constexpr const char* kFamilies[] = {"dft_complex", "dft_real", "hartley", "wht"};
  return kFamilies[static_cast<int>(signature.transform)] + ("_" + type_of(signature));
}

}  // namespace gen
