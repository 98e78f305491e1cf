#include "gen/library.h"

#include <stdexcept>
#include <vector>

#include "gen/emit.h"
#include "gen/manifest.h"

namespace gen {

void write_library(const std::string& directory, const Shards& shards,
                   const std::optional<Order>& order) {
  std::map<std::string, std::vector<std::string>> sources;
  for (const auto& [family, count] : shards) {
    sources[family].assign(count, "// Generated from the tables of " + family +
                                      "; a change belongs there.\n"
                                      "#include \"frame/kernel.h\"\n"
                                      "#include \"frame/vector.h\"\n\n"
                                      "namespace zulgen {\n");
  }
  std::map<std::string, std::size_t> next_shard;
  for (Kernel& kernel : all_kernels()) {
    const auto family = sources.find(kernel.family);
    if (family == sources.end()) throw std::runtime_error("no shards for " + kernel.family);
    if (order) kernel.order = *order;
    // Kernels come in order of length, so that dealing them out evens out the files.
    std::string& source = family->second[next_shard[kernel.family]++ % family->second.size()];
    source += "\n" + emit_kernel(kernel);
  }
  for (const auto& [family, texts] : sources) {
    for (std::size_t shard = 0; shard < texts.size(); ++shard) {
      write_if_changed(directory + "/" + family + "." + std::to_string(shard) + ".cpp",
                       texts[shard] + "\n}  // namespace zulgen\n");
    }
  }
  std::map<std::string, std::string> headers;
  for (Body& body : all_bodies()) {
    if (order) body.order = *order;
    std::string& header = headers[body.family];
    if (header.empty()) {
      header = "// Generated from the tables of " + body.family +
               "; a change belongs there.\n#pragma once\n\n#include \"frame/kernel.h\"\n"
               "#include \"frame/vector.h\"\n\nnamespace zulgen {\n";
    }
    header += "\n" + emit_body_function(body);
  }
  for (const auto& [family, text] : headers) {
    write_if_changed(directory + "/" + family + ".h", text + "\n}  // namespace zulgen\n");
  }
  std::string exports = "{\n  global:\n";
  for (const std::string& name : exported_functions()) exports += "    " + name + ";\n";
  write_if_changed(directory + "/zulgens8.map", exports + "  local:\n    *;\n};\n");
}

}  // namespace gen
