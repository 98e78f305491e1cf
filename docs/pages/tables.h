// Tables of figures.
#pragma once

#include <string>
#include <vector>

#include "docs/pages/figures.h"

namespace pages {

// A figure; "n. m." if it isn't measured, a dash if it can't be.
std::string shown(const Figure& figure, int digits);
std::string shown(const std::optional<double>& value, int digits);

// A row of a table: text cells on the left, then numbers. All are markup.
std::string table_row(const std::vector<std::string>& texts,
                      const std::vector<std::string>& numbers);
std::string table_head(const std::vector<std::string>& texts,
                       const std::vector<std::string>& numbers);

// A table that scrolls by itself where the window is too narrow for it. `name` is what it shows.
std::string table(const std::string& name, const std::string& head, const std::string& rows);

// The geometric mean of some ratios, and the least of them with its length.
class RatioSummary {
 public:
  void add(int length, double ratio);
  int count() const { return count_; }
  double mean() const;
  double lowest() const { return lowest_; }
  int lowest_length() const { return lowest_length_; }

 private:
  double log_sum_ = 0, lowest_ = 0;
  int count_ = 0, lowest_length_ = 0;
};

}  // namespace pages
