#include "docs/pages/figures.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <fstream>
#include <stdexcept>

namespace pages {
namespace {

std::vector<std::string> split(const std::string& line) {
  std::vector<std::string> fields;
  for (std::size_t begin = 0, end = 0; end != std::string::npos; begin = end + 1) {
    end = line.find(',', begin);
    fields.push_back(line.substr(begin, end - begin));
  }
  return fields;
}

std::vector<CsvRow> read_csv_file(const std::string& path, const std::vector<std::string>& wanted) {
  std::ifstream in(path);
  return in ? read_csv(in, path, wanted) : std::vector<CsvRow>();
}

}  // namespace

std::vector<CsvRow> read_csv(std::istream& in, const std::string& name,
                             const std::vector<std::string>& wanted) {
  std::string line;
  std::getline(in, line);
  const std::vector<std::string> columns = split(line);
  for (const std::string& column : wanted) {
    if (std::find(columns.begin(), columns.end(), column) == columns.end()) {
      throw std::runtime_error(name + " has no column " + column);
    }
  }
  std::vector<CsvRow> rows;
  for (int at = 2; std::getline(in, line); ++at) {
    const std::vector<std::string> fields = split(line);
    if (fields.size() != columns.size()) {
      throw std::runtime_error(name + ":" + std::to_string(at) + ": not as many fields as columns");
    }
    CsvRow& row = rows.emplace_back();
    for (std::size_t i = 0; i < fields.size(); ++i) row[columns[i]] = fields[i];
  }
  return rows;
}

Figure figure_of(const std::string& field) {
  if (field.empty()) return {};
  if (field == "-") return {std::nullopt, false};
  char* end = nullptr;
  const double value = std::strtod(field.c_str(), &end);
  if (*end != '\0' || !(value > 0) || !std::isfinite(value)) {
    throw std::runtime_error("no figure: " + field);
  }
  return {value};
}

const std::vector<Architecture> kArchitectures = {
    {"x86-64",
     {"x86-64", "x86-64-v3"},
     {{"fftw", "x86-64-v3"}, {"fftw_sse2", "x86-64"}, {"kissfft", "x86-64-v3"}}},
    {"i386", {"i386"}, {{"fftw", "i386"}, {"fftw_sse2", "i386"}, {"kissfft", "i386"}}}};
const std::vector<std::string> kPeers = {"fftw_sse2", "fftw", "kissfft"};

std::string column_title(const std::string& column) {
  if (column == "fftw_sse2") return "FFTW, SSE2";
  if (column == "fftw") return "FFTW";
  if (column == "kissfft") return "KissFFT";
  return column;
}

std::string title(const Comparison& comparison) {
  return column_title(comparison.peer) + " / " + comparison.level;
}

std::optional<double> Figures::error_of(const std::string& function) const {
  const auto found = error.find(function);
  return found == error.end() ? std::nullopt : std::optional(found->second);
}

Figure Figures::cycles_of(const Architecture& architecture, const std::string& function,
                          const std::string& column) const {
  const auto table = cycles.find(architecture.name);
  if (table == cycles.end()) return {};
  const auto row = table->second.find(function);
  if (row == table->second.end()) return {};
  const auto field = row->second.find(column);
  return field == row->second.end() ? Figure() : field->second;
}

Figure Figures::ratio_of(const Architecture& architecture, const std::string& function,
                         const Comparison& comparison) const {
  const Figure peer = cycles_of(architecture, function, comparison.peer);
  const Figure ours = cycles_of(architecture, function, comparison.level);
  if (!peer.value || !ours.value) return {std::nullopt, peer.is_possible && ours.is_possible};
  return {*peer.value / *ours.value};
}

Figures read_figures(const std::string& directory) {
  Figures figures;
  for (const CsvRow& row : read_csv_file(directory + "/error.csv", {"function", "error_in_u"})) {
    const Figure error = figure_of(row.at("error_in_u"));
    if (error.value) figures.error[row.at("function")] = *error.value;
  }
  for (const Architecture& architecture : kArchitectures) {
    for (const CsvRow& row :
         read_csv_file(directory + "/" + architecture.name + ".csv", {"function", "length"})) {
      auto& fields = figures.cycles[architecture.name][row.at("function")];
      for (const auto& [column, field] : row) {
        if (column != "function" && column != "length") fields[column] = figure_of(field);
      }
    }
  }
  std::ifstream machine(directory + "/machine.txt");
  for (std::string line; std::getline(machine, line);) {
    const std::size_t colon = line.find(": ");
    if (colon == std::string::npos) throw std::runtime_error("machine.txt: no colon in " + line);
    figures.machine.emplace_back(line.substr(0, colon), line.substr(colon + 2));
  }
  return figures;
}

}  // namespace pages
