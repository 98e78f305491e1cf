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

Speed speed_of(const CsvRow& row) {
  return {number(row.at("cycles")), number(row.at("fftw_sse2")), number(row.at("ratio"))};
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

std::optional<double> number(const std::string& field) {
  char* end = nullptr;
  const double value = std::strtod(field.c_str(), &end);
  if (field.empty() || *end != '\0') throw std::runtime_error("not a number: " + field);
  return std::isfinite(value) ? std::optional(value) : std::nullopt;
}

Figures read_figures(const std::string& directory) {
  Figures figures;
  for (const CsvRow& row : read_csv_file(directory + "/error.csv", {"kernel", "error_in_u"})) {
    const std::optional<double> error = number(row.at("error_in_u"));
    if (error) figures.error[row.at("kernel")] = *error;
  }
  const std::vector<std::string> columns = {"length", "cycles", "fftw_sse2", "ratio"};
  for (const CsvRow& row : read_csv_file(directory + "/speed.csv", columns)) {
    figures.speed[row.at("kernel")] = speed_of(row);
  }
  for (const CsvRow& row : read_csv_file(directory + "/dct4.csv", columns)) {
    figures.dct4.push_back({row.at("type"), std::stoi(row.at("length")), speed_of(row)});
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
