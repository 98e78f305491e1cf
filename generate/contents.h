// What a library holds, as a file beside its sources tells programs that aren't compiled with the
// generator: lines of words,
//
//   kernel NAME BYTES SOURCE DESTINATION TRANSFORM DIRECTION LENGTH BOUND
//   entry NAME LOWEST KERNEL...
//
// with the bytes of an element, the elements of the arrays, "complex", "real", "hartley" or
// "walsh", "forward", "inverse" or "itself", and the cycles that the arithmetic keeps its ports
// busy; an entry takes numbers from the lowest on, for a kernel each.
#pragma once

#include <fstream>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

namespace generate {

struct KernelLine {
  std::string name;
  int element_size = 0;
  int source_elements = 0, destination_elements = 0;
  std::string transform = {}, direction = {};
  int length = 0;
  double port_bound = 0;

  bool is_single() const { return element_size == sizeof(float); }
};

struct EntryLine {
  std::string name;
  int lowest = 0;
  std::vector<std::string> kernels;
};

struct Contents {
  std::vector<KernelLine> kernels;
  std::vector<EntryLine> entries;
};

// Throws std::runtime_error.
inline Contents read_contents(const std::string& file) {
  std::ifstream in(file);
  Contents contents;
  for (std::string line, word; std::getline(in, line);) {
    std::istringstream words(line);
    words >> word;
    if (word == "kernel") {
      KernelLine& kernel = contents.kernels.emplace_back();
      words >> kernel.name >> kernel.element_size >> kernel.source_elements >>
          kernel.destination_elements >> kernel.transform >> kernel.direction >> kernel.length >>
          kernel.port_bound;
      if (!words) throw std::runtime_error(file + ": not a kernel: " + line);
    } else {
      EntryLine& entry = contents.entries.emplace_back();
      words >> entry.name >> entry.lowest;
      while (words >> word) entry.kernels.push_back(word);
    }
  }
  if (contents.kernels.empty()) throw std::runtime_error("no kernels in " + file);
  return contents;
}

}  // namespace generate
