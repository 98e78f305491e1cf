#include "docs/pages/catalogue.h"

#include <algorithm>
#include <stdexcept>

#include "gen/manifest.h"

namespace pages {
namespace {

std::string kernel_name(Transform transform, int length, gen::Precision precision) {
  const bool single = precision == gen::Precision::kSingle;
  const auto name = [&](const char* stem, const char* form) {
    return stem + std::to_string(length) + (single ? "_32f" : "_64f") + form;
  };
  switch (transform) {
    case Transform::kComplexForward:
      return name("zulgDFTFwd_CToC_", "c");
    case Transform::kComplexInverse:
      return name("zulgDFTInv_CToC_", "c");
    case Transform::kRealForward:
      return name("zulgDFTFwd_RToCCS_", "");
    case Transform::kRealInverse:
      return name("zulgDFTInv_CCSToR_", "");
    default:
      return name("zulgHartley_", "");
  }
}

Entry entry_of(const gen::Kernel& kernel, const Figures& figures) {
  Entry entry = {kernel, gen::count_operations(kernel.graph()), std::nullopt, {}};
  const auto error = figures.error.find(kernel.name);
  if (error != figures.error.end()) entry.error = error->second;
  const auto speed = figures.speed.find(kernel.name);
  if (speed != figures.speed.end()) entry.speed = speed->second;
  return entry;
}

}  // namespace

std::string title(Transform transform) {
  switch (transform) {
    case Transform::kComplexForward:
      return "Complex DFT, forward";
    case Transform::kComplexInverse:
      return "Complex DFT, inverse";
    case Transform::kRealForward:
      return "Real DFT, forward";
    case Transform::kRealInverse:
      return "Real DFT, inverse";
    default:
      return "Hartley";
  }
}

std::string short_title(Transform transform) {
  std::string text = title(transform);
  const std::size_t dft = text.find(" DFT");
  return dft == std::string::npos ? text : text.erase(dft, 4);
}

std::string title(gen::Precision precision) {
  return precision == gen::Precision::kSingle ? "single" : "double";
}

Catalogue make_catalogue(Figures figures) {
  Catalogue catalogue;
  catalogue.figures = std::move(figures);
  std::map<std::string, gen::Kernel> kernels;
  for (const gen::Kernel& kernel : gen::all_kernels()) {
    kernels[kernel.name] = kernel;
    if (kernel.family.starts_with("wht")) {
      catalogue.walsh_hadamard.push_back(entry_of(kernel, catalogue.figures));
    }
  }
  for (int length = 2; length <= 64; ++length) {
    for (const Transform transform : kTransforms) {
      for (const gen::Precision precision : kPrecisions) {
        const std::string name = kernel_name(transform, length, precision);
        const auto kernel = kernels.find(name);
        if (kernel == kernels.end()) throw std::runtime_error("no kernel is called " + name);
        catalogue.by_length[length].emplace(Key(transform, precision),
                                            entry_of(kernel->second, catalogue.figures));
      }
    }
  }
  const std::vector<std::string> exported = gen::exported_functions();
  catalogue.has_dct4 =
      std::find(exported.begin(), exported.end(), "zulgDCT4_32f") != exported.end();
  return catalogue;
}

std::string factors(int length) {
  std::string text;
  for (int prime = 2; length > 1; ++prime) {
    for (; length % prime == 0; length /= prime) {
      text += (text.empty() ? "" : " · ") + std::to_string(prime);
    }
  }
  return text;
}

bool is_prime(int length) { return factors(length) == std::to_string(length); }

}  // namespace pages
