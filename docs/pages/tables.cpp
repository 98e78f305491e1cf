#include "docs/pages/tables.h"

#include <cmath>

#include "docs/pages/markup.h"

namespace pages {

std::string shown(const std::optional<double>& value, int digits) {
  return value ? fixed(*value, digits) : "–";
}

std::string table_row(std::initializer_list<std::string> texts,
                      std::initializer_list<std::string> numbers) {
  std::string row = "<tr>";
  for (const std::string& text : texts) row += "<td>" + text + "</td>";
  for (const std::string& number : numbers) row += "<td class=\"n\">" + number + "</td>";
  return row + "</tr>\n";
}

std::string table(const std::string& head, const std::string& rows) {
  return "<div class=\"scroll\"><table>\n<thead>" + head + "</thead>\n<tbody>\n" + rows +
         "</tbody>\n</table></div>\n";
}

void RatioSummary::add(int length, double ratio) {
  log_sum_ += std::log(ratio);
  if (count_++ > 0 && ratio >= lowest_) return;
  lowest_ = ratio;
  lowest_length_ = length;
}

double RatioSummary::mean() const { return std::exp(log_sum_ / count_); }

}  // namespace pages
