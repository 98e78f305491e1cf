// The generator's command line.
#include <charconv>
#include <functional>
#include <iostream>
#include <stdexcept>

#include "dft_complex/arrangement.h"
#include "gen/count.h"
#include "gen/dot.h"
#include "generate/library.h"
#include "generate/manifest.h"
#include "generate/pairings.h"

namespace {

constexpr const char* kUsage =
    R"(usage: zulgen-generate --target DIR --out DIR --shards FAMILY=COUNT...
                                      the library's sources for a target; if that is a level of
                                      an architecture, --level-of DIR tells which
       zulgen-generate --list         exported functions
       zulgen-generate --counts       additions and multiplications of every kernel
       zulgen-generate --recipe NAME  how a kernel is decomposed
       zulgen-generate --dot NAME     a kernel's data flow, for Graphviz
       zulgen-generate --arrange NAME
                                      the cheapest arrangement of a single-precision complex
                                      kernel, for its row: takes some seconds
       zulgen-generate --target DIR --print NAME
                                      a kernel's source, or a body's
       zulgen-generate --target DIR --variants NAME --form FORM...
                                      a source file of the kernel in many forms, such as "live 3"
                                      or, in vectors twice as wide, "live 3 x2", for measuring;
                                      they are called NAME_0, NAME_1, ...
       zulgen-generate --target DIR --pair NAME
                                      the kernel's lines for the target's pairings.txt, after a
                                      search of seconds to minutes
       zulgen-generate --help         this text
)";

struct UsageError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

struct Options {
  std::string target, level_of, out, variants, print, pair;
  generate::Shards shards;
  std::vector<std::string> forms;
};

gen::Kernel find_kernel(const std::string& name) {
  for (gen::Kernel& kernel : generate::all_kernels()) {
    if (kernel.name == name) return std::move(kernel);
  }
  throw UsageError("no kernel is called " + name);
}

generate::Target read_target(const Options& options) {
  if (options.target.empty()) throw UsageError("there is no --target");
  return generate::read_target(options.target,
                               options.level_of.empty() ? options.target : options.level_of);
}

std::string source_of(const Options& options) {
  const generate::Target target = read_target(options);
  for (const gen::Body& body : target.bodies()) {
    if (body.name == options.print) return emit_body(body, target.form_of(body));
  }
  const gen::Kernel kernel = find_kernel(options.print);
  return emit_kernel(kernel, target.form_of(kernel)).text;
}

void print_counts() {
  std::cout << "kernel additions multiplications\n";
  const auto print = [](const std::string& name, const gen::Graph& graph) {
    const gen::Counts counts = gen::count_operations(graph);
    std::cout << name << " " << counts.additions << " " << counts.multiplications << "\n";
  };
  for (const gen::Kernel& kernel : generate::all_kernels()) print(kernel.name, kernel.graph());
  for (const gen::Body& body : generate::all_bodies(128)) print(body.name, body.graph());
}

void print_arrangement(const gen::Kernel& kernel) {
  for (const dft_complex::Row32fc& row : dft_complex::kRows32fc) {
    if (row.length != kernel.number || row.length <= dft_complex::kLastScalarLength) continue;
    if (kernel.transform != gen::Transform::kComplexDft || !kernel.is_single()) continue;
    for (const bool answer : cheapest_arrangement(row, kernel.direction)) std::cout << answer;
    std::cout << "\n";
    return;
  }
  throw UsageError(kernel.name + " has one arrangement");
}

// "wht_32f=2".
void add_shards(generate::Shards& shards, const std::string& text) {
  const std::size_t equals = text.find('=');
  int count = 0;
  if (equals != std::string::npos) {
    const char* const last = text.data() + text.size();
    const auto [end, error] = std::from_chars(text.data() + equals + 1, last, count);
    if (error != std::errc() || end != last) count = 0;
  }
  if (count < 1) throw UsageError("not FAMILY=COUNT: " + text);
  shards[text.substr(0, equals)] = count;
}

void run(const std::vector<std::string>& arguments) {
  Options options;
  // What an option without a value does, at once; and what one with a value does with that.
  const std::map<std::string, std::function<void()>> actions = {
      {"--help", [] { std::cout << kUsage; }},
      {"--list",
       [] {
         for (const std::string& name : generate::exported_functions()) std::cout << name << "\n";
       }},
      {"--counts", print_counts}};
  using Value = const std::string&;
  const std::map<std::string, std::function<void(Value)>> settings = {
      {"--recipe", [](Value name) { std::cout << find_kernel(name).recipe << "\n"; }},
      {"--arrange", [](Value name) { print_arrangement(find_kernel(name)); }},
      {"--pair", [&](Value name) { options.pair = name; }},
      {"--dot", [](Value name) { std::cout << gen::dot_graph(find_kernel(name)); }},
      {"--print", [&](Value name) { options.print = name; }},
      {"--variants", [&](Value name) { options.variants = name; }},
      {"--target", [&](Value folder) { options.target = folder; }},
      {"--level-of", [&](Value folder) { options.level_of = folder; }},
      {"--out", [&](Value folder) { options.out = folder; }},
      {"--form", [&](Value form) { options.forms.push_back(form); }},
      {"--shards", [&](Value shards) { add_shards(options.shards, shards); }}};
  if (arguments.empty()) throw UsageError("nothing to do");
  bool done = false;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const std::string& option = arguments[i];
    if (const auto action = actions.find(option); action != actions.end()) return action->second();
    const auto setting = settings.find(option);
    if (setting == settings.end()) throw UsageError("what is " + option + "?");
    if (i + 1 == arguments.size()) throw UsageError(option + " wants a value");
    setting->second(arguments[++i]);
    done = done || option == "--recipe" || option == "--dot" || option == "--arrange";
  }
  if (done) return;
  if (!options.variants.empty()) {
    if (options.forms.empty()) throw UsageError("--variants wants a --form");
    std::cout << generate::source_of_variants(read_target(options), find_kernel(options.variants),
                                              options.forms);
  } else if (!options.pair.empty()) {
    std::cout << generate::find_pairings(find_kernel(options.pair), *read_target(options).moves);
  } else if (!options.print.empty()) {
    std::cout << source_of(options);
  } else if (!options.out.empty()) {
    generate::write_library(read_target(options), options.out, options.shards);
  } else {
    throw UsageError("nothing to do");
  }
}

}  // namespace

int main(int argc, char** argv) {
  try {
    run({argv + 1, argv + argc});
  } catch (const UsageError& error) {
    std::cerr << "zulgen-generate: " << error.what() << "\n" << kUsage;
    return 2;
  } catch (const std::exception& error) {
    std::cerr << "zulgen-generate: " << error.what() << "\n";
    return 1;
  }
  return 0;
}
