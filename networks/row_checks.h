// Whether the rows of a family's table are what the networks know. What is wrong is told with the
// table, the row and the reason, as std::invalid_argument.
#pragma once

#include <stdexcept>
#include <string>

#include "networks/rader_table.h"
#include "networks/tree.h"

namespace networks {

// Where something stands.
struct RowPlace {
  std::string table;  // its file
  int length;

  [[noreturn]] void fail(const std::string& reason) const {
    throw std::invalid_argument(table + ", length " + std::to_string(length) + ": " + reason);
  }
};

// The row's tree. It has the row's length, its leaves have forms that there are or that `leaves`
// has, Rader's form stands at primes, and a chirp is long enough.
Tree tree_of_row(const RowPlace& place, const std::string& text, const RaderTable& leaves);

// That there is a row of every length from 2 to 64, in order.
template <class Rows>
void check_lengths(const std::string& table, const Rows& rows) {
  int length = 2;
  for (const auto& row : rows) {
    if (row.length != length) RowPlace{table, row.length}.fail("the row of another length is due");
    ++length;
  }
  if (length != 65) RowPlace{table, length}.fail("there is no row");
}

}  // namespace networks
