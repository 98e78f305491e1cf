#include "docs/pages/catalogue.h"

#include <algorithm>
#include <stdexcept>

#include "generate/manifest.h"

namespace pages {
namespace {

gen::Signature signature_of(Transform transform, int length, gen::Precision precision) {
  using gen::Direction, gen::Layout;
  const auto of = [&](gen::Transform transform, Direction direction, Layout layout) {
    return gen::Signature{transform, direction, layout, precision, length};
  };
  switch (transform) {
    case Transform::kComplexForward:
      return of(gen::Transform::kComplexDft, Direction::kForward, Layout::kNone);
    case Transform::kComplexInverse:
      return of(gen::Transform::kComplexDft, Direction::kInverse, Layout::kNone);
    case Transform::kRealForward:
      return of(gen::Transform::kRealDft, Direction::kForward, Layout::kCcs);
    case Transform::kRealInverse:
      return of(gen::Transform::kRealDft, Direction::kInverse, Layout::kCcs);
    default:
      return of(gen::Transform::kHartley, Direction::kSelfInverse, Layout::kNone);
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
  for (const gen::Kernel& kernel : generate::all_kernels()) {
    kernels[kernel.name] = kernel;
    if (kernel.transform == gen::Transform::kWalshHadamard) {
      catalogue.walsh_hadamard.push_back(entry_of(kernel, catalogue.figures));
    }
  }
  for (int length = 2; length <= 64; ++length) {
    for (const Transform transform : kTransforms) {
      for (const gen::Precision precision : kPrecisions) {
        const std::string name = name_of(signature_of(transform, length, precision));
        const auto kernel = kernels.find(name);
        if (kernel == kernels.end()) throw std::runtime_error("no kernel is called " + name);
        catalogue.by_length[length].emplace(Key(transform, precision),
                                            entry_of(kernel->second, catalogue.figures));
      }
    }
  }
  const std::vector<std::string> exported = generate::exported_functions();
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
