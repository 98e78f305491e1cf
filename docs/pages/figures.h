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

// Core cycles a call, or a ratio of them.
struct Figure {
  std::optional<double> value;
  bool is_possible = true;  // false if there is nothing that could be measured
};

// A field of a table: a number, nothing if it isn't measured, "-" if it can't be. Throws
// std::runtime_error if it is none of these.
Figure figure_of(const std::string& field);

// A peer's time over that of a level of the library; both are columns of a table.
struct Comparison {
  std::string peer, level;
};

// What programs are made for. The columns of its table are levels of the library, the plain one
// first, and peers.
struct Architecture {
  std::string name;
  std::vector<std::string> levels;
  std::vector<Comparison> comparisons;  // of equals; the first is with what runs where both are new
};
extern const std::vector<Architecture> kArchitectures;
extern const std::vector<std::string> kPeers;

// A column as a reader knows it: "FFTW, SSE2".
std::string column_title(const std::string& column);
// "FFTW / x86-64-v3".
std::string title(const Comparison& comparison);

struct Figures {
  std::map<std::string, double> error;  // by function, in units of u
  // By architecture, function and column.
  std::map<std::string, std::map<std::string, std::map<std::string, Figure>>> cycles;
  std::vector<std::pair<std::string, std::string>> machine;  // part, what it is

  std::optional<double> error_of(const std::string& function) const;
  Figure cycles_of(const Architecture& architecture, const std::string& function,
                   const std::string& column) const;
  Figure ratio_of(const Architecture& architecture, const std::string& function,
                  const Comparison& comparison) const;
};

// Files that are not there leave their figures out.
Figures read_figures(const std::string& directory);

}  // namespace pages
