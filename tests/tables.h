// The tables of what is wanted, in tests/tables/.
#pragma once

#include <fstream>
#include <map>
#include <sstream>
#include <string>
#include <vector>

// Rows by length; cells by column.
using Table = std::map<int, std::vector<std::string>>;

inline Table read_table(const std::string& file) {
  std::ifstream in(TABLES "/" + file);
  Table table;
  std::string line, cell;
  std::getline(in, line);
  while (std::getline(in, line)) {
    std::istringstream cells(line);
    std::getline(cells, cell, ';');
    std::vector<std::string>& row = table[std::stoi(cell)];
    while (std::getline(cells, cell, ';')) row.push_back(cell);
  }
  return table;
}
