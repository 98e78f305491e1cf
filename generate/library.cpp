#include "generate/library.h"

#include <sstream>
#include <stdexcept>

#include "gen/cost.h"
#include "gen/emit.h"
#include "generate/dispatch.h"
#include "generate/manifest.h"

namespace generate {
namespace {

constexpr const char* kAssemblyEnd = "\n        .section .note.GNU-stack, \"\", @progbits\n";

std::string source_file(const std::string& heading, const std::string& functions) {
  return "// " + heading +
         "\n#include \"frame/kernel.h\"\n#include \"frame/vector.h\"\n\nnamespace zulgen {\n" +
         functions + "\n}  // namespace zulgen\n";
}

// The text of each shard.
std::vector<std::string> deal_out(const Target& target, const std::vector<gen::Kernel>& kernels,
                                  int shards) {
  std::vector<std::string> texts(shards);
  std::map<std::string, int> shard_of;
  int next = 0;
  for (const gen::Kernel& kernel : kernels) {
    // Kernels come in order of length, so that dealing them out evens out the files. A name that
    // stands for another kernel belongs behind it.
    const int shard = kernel.same_as.empty() ? next++ % shards : shard_of.at(kernel.same_as);
    shard_of[kernel.name] = shard;
    try {
      texts[shard] += "\n" + emit_kernel(kernel, target.order_of(kernel));
    } catch (const std::exception& error) {
      throw std::runtime_error(kernel.name + ": " + error.what());
    }
  }
  return texts;
}

// See contents.h.
std::string contents() {
  static constexpr const char* kTransforms[] = {"complex", "real", "hartley", "walsh"};
  static constexpr const char* kDirections[] = {"forward", "inverse", "itself"};
  std::ostringstream text;
  for (const gen::Kernel& kernel : all_kernels()) {
    const gen::Graph code =
        gen::lowered(kernel.graph(), kernel.source_elements, kernel.loads_halves);
    text << "kernel " << kernel.name << " " << (kernel.is_single() ? 4 : 8) << " "
         << kernel.source_elements << " " << kernel.destination_elements << " "
         << kTransforms[static_cast<int>(kernel.transform)] << " "
         << kDirections[static_cast<int>(kernel.direction)] << " " << kernel.length() << " "
         << gen::port_bound(gen::count_vector_operations(code)) << "\n";
  }
  for (const DispatchEntry& entry : dispatch_entries(all_kernels())) {
    text << "entry " << entry.name << " " << entry.lowest;
    for (const std::string& kernel : entry.kernels) text << " " << kernel;
    text << "\n";
  }
  return text.str();
}

}  // namespace

void write_library(const Target& target, const std::string& directory, const Shards& shards) {
  const auto write = [&](const std::string& name, const std::string& text) {
    gen::write_if_changed(directory + "/" + name, text);
  };
  std::map<std::string, std::vector<gen::Kernel>> families;
  for (const gen::Kernel& kernel : all_kernels()) {
    std::vector<gen::Kernel>& family = families[family_of(kernel)];
    if (kernel.is_generated) family.push_back(kernel);
  }
  std::map<std::string, std::string> entries_of;
  for (const DispatchEntry& entry : dispatch_entries(all_kernels())) {
    entries_of[entry.family] += "\n" + emit_dispatch(entry, target.entry);
  }
  for (const auto& [family, kernels] : families) {
    if (!shards.contains(family)) throw std::runtime_error("no shards for " + family);
    const std::vector<std::string> texts = deal_out(target, kernels, shards.at(family));
    for (std::size_t shard = 0; shard < texts.size(); ++shard) {
      write(family + "." + std::to_string(shard) + ".cpp",
            source_file("Generated from the tables of " + family + "; a change belongs there.",
                        texts[shard]));
    }
    write(family + ".dispatch.s",
          "# Generated from the list of " + family + ".\n" + entries_of[family] + kAssemblyEnd);
  }
  for (const auto& [name, text] : body_headers()) write(name, text);
  write("library.txt", contents());
  std::string exports = "{\n  global:\n";
  for (const std::string& name : exported_functions()) exports += "    " + name + ";\n";
  write("zulgens8.map", exports + "  local:\n    *;\n};\n");
}

std::string source_of_variants(gen::Kernel kernel, const std::vector<gen::Order>& orders) {
  std::string functions;
  const std::string name = kernel.name;
  kernel.graph = [graph = kernel.graph()] { return graph; };
  for (std::size_t i = 0; i < orders.size(); ++i) {
    kernel.name = name + "_" + std::to_string(i);
    functions += "\n" + emit_kernel(kernel, orders[i]);
  }
  return source_file(name + " in " + std::to_string(orders.size()) + " orders.", functions);
}

}  // namespace generate
