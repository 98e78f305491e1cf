#include "generate/target.h"

#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>
#include <stdexcept>

#include "generate/manifest.h"

namespace generate {
namespace {

std::string row_name(gen::Signature signature) {
  if (signature.layout != gen::Layout::kNone) signature.layout = gen::Layout::kCcs;
  return name_of(signature);
}

std::string read_file(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  std::ostringstream text;
  text << file.rdbuf();
  if (!file) throw std::runtime_error("can't read " + path);
  return text.str();
}

std::set<std::string> wanted_rows() {
  std::set<std::string> names;
  for (const gen::Kernel& kernel : all_kernels()) {
    if (kernel.is_generated) names.insert(row_name(kernel));
  }
  for (const gen::Body& body : all_bodies()) names.insert(body.name);
  return names;
}

// A line "moves" and the name of what the target has for moving lanes, then lines of a name and an
// order of two words; those that begin with # are comments.
void read_forms(const std::string& path, Target& target) {
  std::istringstream lines(read_file(path));
  std::set<std::string> missing = wanted_rows();
  std::string line;
  for (int number = 1; std::getline(lines, line); ++number) {
    if (line.empty() || line[0] == '#') continue;
    const auto fail = [&](const std::string& what) {
      throw std::runtime_error(path + ":" + std::to_string(number) + ": " + what);
    };
    if (line.starts_with("moves ")) {
      target.moves = &gen::moves_called(line.substr(6));
      continue;
    }
    if (target.moves == nullptr) fail("no moves before the first row");
    const std::size_t order = line.rfind(' ', line.rfind(' ') - 1);
    const std::size_t name_end = line.find_last_not_of(' ', order);
    if (name_end == std::string::npos) fail("not a name and an order");
    const std::string name = line.substr(0, name_end + 1);
    if (missing.erase(name) == 0) fail("no kernel, or a second row of it: " + name);
    try {
      target.forms[name] = {gen::parse_order(line.substr(order + 1)), target.moves};
    } catch (const std::invalid_argument& error) {
      fail(error.what());
    }
  }
  if (!missing.empty()) throw std::runtime_error(path + ": no row of " + *missing.begin());
}

}  // namespace

gen::Form Target::form_of(const gen::Kernel& kernel) const { return forms.at(row_name(kernel)); }

Target read_target(const std::string& folder, const std::string& architecture_folder) {
  const auto find = [&](const std::string& file) {
    const std::string own = folder + "/" + file;
    return std::filesystem::exists(own) ? own : architecture_folder + "/" + file;
  };
  Target target;
  target.name = std::filesystem::path(folder).filename();
  target.entry = read_file(find("entry.s.in"));
  read_forms(find("kernels.txt"), target);
  return target;
}

}  // namespace generate
