// The measured figures that are checked in beside the manual, as bench/measure.sh writes them.
#pragma once

#include <istream>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace pages {

// A file of comma-separated values: one map from column to text a row. Throws std::runtime_error,
// with `name` and the line, if a wanted column is missing or a row has other columns than the head.
using CsvRow = std::map<std::string, std::string>;
std::vector<CsvRow> read_csv(std::istream& in, const std::string& name,
                             const std::vector<std::string>& wanted);

// A CSV field as a number; none if it is "nan". Throws std::runtime_error if it is neither.
std::optional<double> number(const std::string& field);

// Core cycles a call. A figure that could not be taken is missing.
struct Speed {
  std::optional<double> cycles;
  std::optional<double> fftw;   // held to SSE2
  std::optional<double> ratio;  // FFTW's cycles over ours
};

// One length of the DCT-IV.
struct Dct4Speed {
  std::string type;
  int length = 0;
  Speed speed;
};

struct Figures {
  std::map<std::string, double> error;  // by kernel, in units of u
  std::map<std::string, Speed> speed;   // by kernel
  std::vector<Dct4Speed> dct4;
  std::vector<std::pair<std::string, std::string>> machine;  // part, what it is
};

// Files that are not there leave their figures out.
Figures read_figures(const std::string& directory);

}  // namespace pages
