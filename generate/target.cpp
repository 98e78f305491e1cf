#include "generate/target.h"

#include <algorithm>
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

std::set<std::string> wanted_rows(const Target& target) {
  std::set<std::string> names;
  for (const gen::Kernel& kernel : all_kernels()) {
    if (kernel.is_generated) names.insert(row_name(kernel));
  }
  for (const gen::Body& body : target.bodies()) names.insert(body.name);
  return names;
}

// Calls `read` with every line but comments, which begin with #.
template <class Read>
void read_lines(const std::string& path, Read read) {
  std::istringstream lines(read_file(path));
  std::string line;
  for (int number = 1; std::getline(lines, line); ++number) {
    if (line.empty() || line[0] == '#') continue;
    try {
      read(line);
    } catch (const std::invalid_argument& error) {
      throw std::runtime_error(path + ":" + std::to_string(number) + ": " + error.what());
    }
  }
}

// Lines of a name and a pairing: the first of a name is for the first run, and so on. A level's
// lines take the place of those of its architecture.
void read_pairings(const std::string& path, Target& target) {
  std::map<std::string, std::vector<gen::Pairing>> pairings;
  read_lines(path, [&](const std::string& line) {
    const std::size_t name_end = std::min(line.find(' '), line.size() - 1);
    pairings[line.substr(0, name_end)].push_back(
        gen::parse_pairing(std::string_view(line).substr(name_end + 1)));
  });
  pairings.merge(target.pairings);
  target.pairings = std::move(pairings);
}

gen::Form parse_form(const Target& target, const std::string& name, std::string text) {
  gen::Form form;
  form.moves = target.moves;
  for (std::size_t runs = 1; runs <= 2; ++runs) {
    const std::string times = " x" + std::to_string(1 << runs);
    if (!text.ends_with(times)) continue;
    text.resize(text.size() - times.size());
    const auto known = target.pairings.find(name);
    if (known == target.pairings.end() || known->second.size() < runs) {
      throw std::invalid_argument("no pairing for" + times + ": " + name);
    }
    form.pairings.assign(known->second.begin(), known->second.begin() + runs);
  }
  form.order = gen::parse_order(text);
  return form;
}

// A line "moves" and the name of what the target has for moving lanes, then lines of a name and a
// form.
void read_forms(const std::string& path, Target& target) {
  std::set<std::string> missing;
  read_lines(path, [&](const std::string& line) {
    if (line.starts_with("moves ")) {
      target.moves = &gen::moves_called(line.substr(6));
      missing = wanted_rows(target);
      return;
    }
    if (target.moves == nullptr) throw std::invalid_argument("no moves before the first row");
    // A body's name may hold a space among its template arguments.
    const std::size_t arguments = line.find('>');
    const std::size_t name_end = line.find(' ', arguments == std::string::npos ? 0 : arguments);
    const std::size_t form = line.find_first_not_of(' ', name_end);
    if (form == std::string::npos) throw std::invalid_argument("not a name and a form");
    const std::string name = line.substr(0, name_end);
    if (missing.erase(name) == 0) {
      throw std::invalid_argument("no kernel, or a second row of it: " + name);
    }
    target.forms[name] = parse_form(target, name, line.substr(form));
  });
  if (!missing.empty()) throw std::runtime_error(path + ": no row of " + *missing.begin());
}

}  // namespace

gen::Form Target::form_of(const gen::Kernel& kernel) const { return forms.at(row_name(kernel)); }

gen::Form Target::parse_form(const gen::Kernel& kernel, const std::string& text) const {
  return generate::parse_form(*this, row_name(kernel), text);
}

std::vector<gen::Body> Target::bodies() const { return all_bodies(moves->vector_bits()); }

Target read_target(const std::string& folder, const std::string& architecture_folder) {
  const auto find = [&](const std::string& file) {
    const std::string own = folder + "/" + file;
    return std::filesystem::exists(own) ? own : architecture_folder + "/" + file;
  };
  Target target;
  target.name = std::filesystem::path(folder).filename();
  target.entry = read_file(find("entry.s.in"));
  std::vector<std::string> places = {architecture_folder};
  if (folder != architecture_folder) places.push_back(folder);
  for (const std::string& place : places) {
    const std::string path = place + "/pairings.txt";
    if (std::filesystem::exists(path)) read_pairings(path, target);
  }
  read_forms(find("kernels.txt"), target);
  return target;
}

}  // namespace generate
