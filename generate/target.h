// A machine that the library is written for, as its folder under targets/ describes it.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "gen/body.h"
#include "gen/kernel.h"

namespace generate {

struct Target {
  std::string name;  // of the folder
  // entry.s.in: the assembly of an entry that takes a length at run time.
  std::string entry;
  // pairings.txt, if there is one: what can go side by side in wider vectors, by kernel, for every
  // run of the packing pass. A level's lines of a kernel take the place of its architecture's. A
  // real kernel's row, that of its CCS layout, stands for all layouts.
  std::map<std::string, std::vector<gen::Pairing>> pairings;
  // kernels.txt: how each kernel and each body is written down, by name.
  std::map<std::string, gen::Form> forms;
  const gen::MoveSet* moves = nullptr;  // of all forms

  gen::Form form_of(const gen::Kernel& kernel) const;
  gen::Form form_of(const gen::Body& body) const { return forms.at(body.name); }
  // "live 3 x2": an order, and how many times as wide the vectors are as the kernel's own, by its
  // pairings. Throws std::invalid_argument.
  gen::Form parse_form(const gen::Kernel& kernel, const std::string& text) const;
  // Those for its vectors.
  std::vector<gen::Body> bodies() const;
};

// A level of an architecture has a folder of its own, and what isn't there is the architecture's.
// Throws std::runtime_error that names the file and the line if something is missing or wrong.
Target read_target(const std::string& folder, const std::string& architecture_folder);

}  // namespace generate
