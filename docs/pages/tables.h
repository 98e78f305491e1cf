// Tables of figures.
#pragma once

#include <initializer_list>
#include <optional>
#include <string>

namespace pages {

// A figure, or a dash if there is none.
std::string shown(const std::optional<double>& value, int digits);

// A row of a table: text cells on the left, then numbers. All are markup.
std::string table_row(std::initializer_list<std::string> texts,
                      std::initializer_list<std::string> numbers);

// A table that scrolls by itself where the window is too narrow for it.
std::string table(const std::string& head, const std::string& rows);

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
