#include "gen/library.h"

#include <stdexcept>
#include <vector>

#include "gen/dispatch.h"
#include "gen/emit.h"
#include "gen/manifest.h"

namespace gen {

namespace {

std::string source_file(const std::string& heading, const std::string& functions) {
  return "// " + heading +
         "\n#include \"frame/kernel.h\"\n#include \"frame/vector.h\"\n\nnamespace zulgen {\n" +
         functions + "\n}  // namespace zulgen\n";
}

}  // namespace

void write_library(const std::string& directory, const Shards& shards) {
  std::map<std::string, std::vector<std::string>> sources;
  for (const auto& [family, count] : shards) {
    sources[family].resize(count);
  }
  std::map<std::string, std::size_t> next_shard, shard_of;
  const std::vector<Kernel> kernels = all_kernels();
  for (const Kernel& kernel : kernels) {
    if (!kernel.is_generated) continue;
    const auto family = sources.find(kernel.family);
    if (family == sources.end()) throw std::runtime_error("no shards for " + kernel.family);
    // Kernels come in order of length, so that dealing them out evens out the files. A name that
    // stands for another kernel belongs behind it.
    const std::size_t shard = kernel.same_as.empty()
                                  ? next_shard[kernel.family]++ % family->second.size()
                                  : shard_of.at(kernel.same_as);
    shard_of[kernel.name] = shard;
    family->second[shard] += "\n" + emit_kernel(kernel);
  }
  std::map<std::string, std::string> entries_of;
  for (const DispatchEntry& entry : dispatch_entries(kernels)) {
    entries_of[entry.family] += "\n" + emit_dispatch(entry);
  }
  for (const auto& [family, texts] : sources) {
    write_if_changed(directory + "/" + family + ".dispatch.cpp",
                     "// Generated from the list of " + family +
                         ".\n#include \"frame/dispatch.h\"\n" + entries_of[family]);
    for (std::size_t shard = 0; shard < texts.size(); ++shard) {
      write_if_changed(
          directory + "/" + family + "." + std::to_string(shard) + ".cpp",
          source_file("Generated from the tables of " + family + "; a change belongs there.",
                      texts[shard]));
    }
  }
  for (const auto& [name, text] : body_headers()) {
    write_if_changed(directory + "/" + name, text);
  }
  std::string exports = "{\n  global:\n";
  for (const std::string& name : exported_functions()) exports += "    " + name + ";\n";
  write_if_changed(directory + "/zulgens8.map", exports + "  local:\n    *;\n};\n");
}

std::string source_of_variants(Kernel kernel, const std::vector<Order>& orders) {
  std::string functions;
  const std::string name = kernel.name;
  kernel.graph = [graph = kernel.graph()] { return graph; };
  for (std::size_t i = 0; i < orders.size(); ++i) {
    kernel.name = name + "_" + std::to_string(i);
    kernel.order = orders[i];
    functions += "\n" + emit_kernel(kernel);
  }
  return source_file(name + " in " + std::to_string(orders.size()) + " orders.", functions);
}

}  // namespace gen
