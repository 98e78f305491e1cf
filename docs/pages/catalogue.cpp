#include "docs/pages/catalogue.h"

#include <stdexcept>

#include "generate/manifest.h"

namespace pages {
namespace {

constexpr int kLongestDct4 = 131072;

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

// "live 3 x2".
std::string text_of(const gen::Kernel& kernel, const gen::Form& form) {
  const std::size_t doublings = form.pairings.size() + kernel.is_wide(*form.moves);
  return to_string(form.order) +
         (doublings == 0 ? "" : " x" + std::to_string(std::size_t{1} << doublings));
}

// What every target makes of the kernel.
std::vector<Written> written(const gen::Kernel& kernel, const gen::Graph& graph,
                             const std::vector<generate::Target>& targets) {
  if (!kernel.is_generated) return {};
  std::vector<Written> result;
  for (const generate::Target& target : targets) {
    const gen::Form form = target.form_of(kernel);
    const gen::Graph code = written_graph(kernel, graph, form);
    result.push_back({target.name, count_vector_operations(code), text_of(kernel, form)});
  }
  return result;
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

Catalogue make_catalogue(Figures figures, const std::vector<generate::Target>& targets) {
  Catalogue catalogue;
  catalogue.figures = std::move(figures);
  const auto entry_of = [&](const gen::Kernel& kernel) {
    const gen::Graph graph = kernel.graph();
    return Entry{kernel, gen::count_operations(graph), catalogue.figures.error_of(kernel.name),
                 written(kernel, graph, targets)};
  };
  std::map<std::string, gen::Kernel> kernels;
  for (const gen::Kernel& kernel : generate::all_kernels()) {
    kernels[kernel.name] = kernel;
    if (kernel.transform == gen::Transform::kWalshHadamard) {
      catalogue.walsh_hadamard.push_back(entry_of(kernel));
    }
  }
  for (int length = 2; length <= 64; ++length) {
    for (const Transform transform : kTransforms) {
      for (const gen::Precision precision : kPrecisions) {
        const std::string name = name_of(signature_of(transform, length, precision));
        const auto kernel = kernels.find(name);
        if (kernel == kernels.end()) throw std::runtime_error("no kernel is called " + name);
        catalogue.by_length[length].emplace(Key(transform, precision), entry_of(kernel->second));
      }
    }
  }
  for (int length = 2; length <= kLongestDct4; length *= 2)
    catalogue.dct4_lengths.push_back(length);
  return catalogue;
}

std::vector<Group> groups(const Catalogue& catalogue) {
  std::vector<Group> result;
  for (const Transform transform : kTransforms) {
    for (const gen::Precision precision : kPrecisions) {
      Group& group = result.emplace_back(Group{title(transform), precision, {}});
      for (const auto& [length, entries] : catalogue.by_length) {
        group.functions.emplace_back(length, entries.at({transform, precision}).kernel.name);
      }
    }
  }
  for (const gen::Precision precision : kPrecisions) {
    Group& group = result.emplace_back(Group{"Walsh-Hadamard", precision, {}});
    for (const Entry& entry : catalogue.walsh_hadamard) {
      if (entry.kernel.precision != precision) continue;
      group.functions.emplace_back(entry.kernel.length(), entry.kernel.name);
    }
  }
  for (const gen::Precision precision : kPrecisions) {
    Group& group = result.emplace_back(Group{"DCT-IV", precision, {}});
    for (const int length : catalogue.dct4_lengths) {
      group.functions.emplace_back(length, dct4_name(precision, length));
    }
  }
  return result;
}

std::string dct4_name(gen::Precision precision, int length) {
  return std::string("zulgDCT4_") + (precision == gen::Precision::kSingle ? "32f_" : "64f_") +
         std::to_string(length);
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
