#include "docs/pages/tables.h"

#include <cmath>

#include "docs/pages/markup.h"

namespace pages {

namespace {

std::string row_of(const std::string& cell, const std::vector<std::string>& texts,
                   const std::vector<std::string>& numbers) {
  std::string row = "<tr>";
  for (const std::string& text : texts) row += "<" + cell + ">" + text + "</" + cell + ">";
  for (const std::string& number : numbers) {
    row += "<" + cell + " class=\"n\">" + number + "</" + cell + ">";
  }
  return row + "</tr>\n";
}

}  // namespace

std::string shown(const Figure& figure, int digits) {
  if (figure.value) return fixed(*figure.value, digits);
  return figure.is_possible ? "n.&#160;m." : "–";
}

std::string shown(const std::optional<double>& value, int digits) {
  return shown(Figure{value}, digits);
}

std::string table_row(const std::vector<std::string>& texts,
                      const std::vector<std::string>& numbers) {
  return row_of("td", texts, numbers);
}

std::string table_head(const std::vector<std::string>& texts,
                       const std::vector<std::string>& numbers) {
  return row_of("th", texts, numbers);
}

std::string table(const std::string& name, const std::string& head, const std::string& rows) {
  return "<div class=\"scroll\" role=\"region\" tabindex=\"0\" aria-label=\"" + escaped(name) +
         "\"><table>\n<thead>" + head + "</thead>\n<tbody>\n" + rows + "</tbody>\n</table></div>\n";
}

void RatioSummary::add(int length, double ratio) {
  log_sum_ += std::log(ratio);
  if (count_++ > 0 && ratio >= lowest_) return;
  lowest_ = ratio;
  lowest_length_ = length;
}

double RatioSummary::mean() const { return std::exp(log_sum_ / count_); }

}  // namespace pages
