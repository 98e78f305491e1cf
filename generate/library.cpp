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

std::string source_file(const std::string& heading, const gen::MoveSet& moves,
                        const std::string& functions) {
  return "// " + heading + "\n#include \"frame/kernel.h\"\n#include \"" + moves.header() +
         "\"\n\nnamespace zulgen {\n" + functions + "\n}  // namespace zulgen\n";
}

// See contents.h.
std::string line_of(const gen::Kernel& kernel, double port_bound) {
  static constexpr const char* kTransforms[] = {"complex", "real", "hartley", "walsh"};
  static constexpr const char* kDirections[] = {"forward", "inverse", "itself"};
  std::ostringstream text;
  text << "kernel " << kernel.name << " " << (kernel.is_single() ? 4 : 8) << " "
       << kernel.source_elements << " " << kernel.destination_elements << " "
       << kTransforms[static_cast<int>(kernel.transform)] << " "
       << kDirections[static_cast<int>(kernel.direction)] << " " << kernel.length() << " "
       << port_bound << "\n";
  return text.str();
}

// The sources of a library's kernels, and their lines in its contents.
class Sources {
 public:
  Sources(const Target& target, const Shards& shards) : target_(target) {
    for (const auto& [family, count] : shards) texts[family].resize(count);
  }

  // Kernels come in order of length, so that dealing them out evens out the files. A name that
  // stands for another kernel belongs behind it.
  void add(const gen::Kernel& kernel) {
    const std::string family = family_of(kernel);
    if (!texts.contains(family)) throw std::runtime_error("no shards for " + family);
    if (!kernel.is_generated) {
      const gen::Graph graph =
          kernel.is_wide(*target_.moves) ? kernel.wide_graph() : kernel.graph();
      lines += line_of(kernel, gen::port_bound(gen::count_vector_operations(graph)));
      return;
    }
    const gen::WrittenKernel written = emit_kernel(kernel, target_.form_of(kernel));
    lines += line_of(kernel, written.port_bound);
    std::vector<std::string>& shards = texts[family];
    const std::size_t shard =
        kernel.same_as.empty() ? next_[family]++ % shards.size() : shard_of_.at(kernel.same_as);
    shard_of_[kernel.name] = shard;
    shards[shard] += "\n" + written.text;
  }

  std::map<std::string, std::vector<std::string>> texts;  // by family, for each shard
  std::string lines;

 private:
  const Target& target_;
  std::map<std::string, std::size_t> next_, shard_of_;
};

}  // namespace

void write_library(const Target& target, const std::string& directory, const Shards& shards) {
  const auto write = [&](const std::string& name, const std::string& text) {
    gen::write_if_changed(directory + "/" + name, text);
  };
  const std::vector<gen::Kernel> kernels = all_kernels();
  Sources sources(target, shards);
  for (const gen::Kernel& kernel : kernels) {
    try {
      sources.add(kernel);
    } catch (const std::exception& error) {
      throw std::runtime_error(kernel.name + ": " + error.what());
    }
  }
  std::map<std::string, std::string> entries_of;
  for (const DispatchEntry& entry : dispatch_entries(kernels)) {
    entries_of[entry.family] += "\n" + emit_dispatch(entry, target.entry);
    sources.lines += "entry " + entry.name + " " + std::to_string(entry.lowest);
    for (const std::string& kernel : entry.kernels) sources.lines += " " + kernel;
    sources.lines += "\n";
  }
  for (const auto& [family, texts] : sources.texts) {
    for (std::size_t shard = 0; shard < texts.size(); ++shard) {
      write(family + "." + std::to_string(shard) + ".cpp",
            source_file("Generated from the tables of " + family + "; a change belongs there.",
                        *target.moves, texts[shard]));
    }
    write(family + ".dispatch.s",
          "# Generated from the list of " + family + ".\n" + entries_of[family] + kAssemblyEnd);
  }
  const auto form_of = [&](const gen::Body& body) { return target.form_of(body); };
  for (const auto& [name, text] : headers_of_bodies(target.bodies(), form_of)) write(name, text);
  write("library.txt", sources.lines);
  std::string exports = "{\n  global:\n";
  for (const std::string& name : exported_functions()) exports += "    " + name + ";\n";
  write("zulgens8.map", exports + "  local:\n    *;\n};\n");
}

std::string source_of_variants(const Target& target, gen::Kernel kernel,
                               const std::vector<std::string>& forms) {
  std::string functions;
  const std::string name = kernel.name;
  const gen::Kernel row = kernel;
  kernel.graph = [graph = kernel.graph()] { return graph; };
  for (std::size_t i = 0; i < forms.size(); ++i) {
    kernel.name = name + "_" + std::to_string(i);
    functions += "\n" + emit_kernel(kernel, target.parse_form(row, forms[i])).text;
  }
  return source_file(name + " in " + std::to_string(forms.size()) + " forms.", *target.moves,
                     functions);
}

}  // namespace generate
