// The generator's command line.
#include <cstdio>
#include <iostream>
#include <stdexcept>

#include "gen/count.h"
#include "gen/dot.h"
#include "gen/library.h"
#include "gen/manifest.h"

namespace {

constexpr const char* kUsage =
    "usage: zulgen-generate --out DIR --shards FAMILY=COUNT...\n"
    "       zulgen-generate --list          exported functions\n"
    "       zulgen-generate --counts        additions and multiplications of every kernel\n"
    "       zulgen-generate --recipe NAME   how a kernel is decomposed\n"
    "       zulgen-generate --print NAME    a kernel's source\n"
    "       zulgen-generate --variants NAME --order ORDER...\n"
    "                                       a source file of the kernel in many orders, for "
    "measuring;\n"
    "                                       they are called NAME_0, NAME_1, ...\n"
    "       zulgen-generate --dot NAME      a kernel's data flow, for Graphviz\n";

struct UsageError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

gen::Kernel find_kernel(const std::string& name) {
  for (gen::Kernel& kernel : gen::all_kernels()) {
    if (kernel.name == name) return std::move(kernel);
  }
  throw UsageError("no kernel is called " + name);
}

std::string source_of(const std::string& name) {
  for (const gen::Body& body : gen::all_bodies()) {
    if (body.name == name) return gen::emit_body_function(body);
  }
  return gen::emit_kernel(find_kernel(name));
}

void print_counts() {
  std::cout << "kernel additions multiplications\n";
  const auto print = [](const std::string& name, const gen::Graph& graph) {
    const gen::Counts counts = gen::count_operations(graph);
    std::cout << name << " " << counts.additions << " " << counts.multiplications << "\n";
  };
  for (const gen::Kernel& kernel : gen::all_kernels()) print(kernel.name, kernel.graph());
  for (const gen::Body& body : gen::all_bodies()) print(body.name, body.graph());
}

void run(const std::vector<std::string>& arguments) {
  std::string directory, variants_of;
  gen::Shards shards;
  std::vector<gen::Order> orders;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const std::string& option = arguments[i];
    if (option == "--list") {
      for (const std::string& name : gen::exported_functions()) std::cout << name << "\n";
      return;
    }
    if (option == "--counts") return print_counts();
    if (i + 1 == arguments.size()) throw UsageError("what is " + option + "?");
    const std::string& value = arguments[++i];
    if (option == "--recipe") {
      std::cout << find_kernel(value).recipe << "\n";
      return;
    } else if (option == "--print") {
      std::cout << source_of(value);
      return;
    } else if (option == "--dot") {
      std::cout << gen::dot_graph(find_kernel(value));
      return;
    } else if (option == "--out") {
      directory = value;
    } else if (option == "--shards") {
      const std::size_t equals = value.find('=');
      if (equals == std::string::npos) throw UsageError("not FAMILY=COUNT: " + value);
      shards[value.substr(0, equals)] = std::stoi(value.substr(equals + 1));
    } else if (option == "--order") {
      orders.push_back(gen::parse_order(value));
    } else if (option == "--variants") {
      variants_of = value;
    } else {
      throw UsageError("what is " + option + "?");
    }
  }
  if (!variants_of.empty()) {
    std::cout << gen::source_of_variants(find_kernel(variants_of), orders);
    return;
  }
  if (directory.empty()) throw UsageError("nothing to do");
  gen::write_library(directory, shards);
}

}  // namespace

int main(int argc, char** argv) {
  try {
    run({argv + 1, argv + argc});
  } catch (const std::logic_error& error) {
    std::cerr << "zulgen-generate: " << error.what() << "\n";
    return 2;
  } catch (const UsageError& error) {
    std::cerr << "zulgen-generate: " << error.what() << "\n" << kUsage;
    return 2;
  } catch (const std::exception& error) {
    std::cerr << "zulgen-generate: " << error.what() << "\n";
    return 1;
  }
  return 0;
}
