#include "docs/pages/speed_tables.h"

#include "docs/pages/markup.h"
#include "docs/pages/tables.h"

namespace pages {

std::string speed_table(const Figures& figures, const Architecture& architecture,
                        const std::string& heading, const std::vector<SpeedRow>& rows) {
  std::vector<std::string> columns = architecture.levels;
  columns.insert(columns.end(), kPeers.begin(), kPeers.end());
  std::vector<std::string> titles;
  for (const std::string& column : columns) titles.push_back(column_title(column));
  for (const Comparison& comparison : architecture.comparisons) {
    titles.push_back(title(comparison));
  }
  std::string text;
  for (const SpeedRow& row : rows) {
    std::vector<std::string> fields;
    for (const std::string& column : columns) {
      fields.push_back(shown(figures.cycles_of(architecture, row.function, column), 1));
    }
    for (const Comparison& comparison : architecture.comparisons) {
      fields.push_back(shown(figures.ratio_of(architecture, row.function, comparison), 2));
    }
    text += table_row({row.label}, fields);
  }
  return table("Cycles, " + architecture.name, table_head({heading}, titles), text);
}

std::string speed_summary(const Catalogue& catalogue, const Architecture& architecture) {
  std::vector<std::string> titles;
  for (const Comparison& comparison : architecture.comparisons) {
    titles.push_back(title(comparison) + ", mean");
    titles.push_back("least");
  }
  std::string rows;
  for (const Group& group : groups(catalogue)) {
    std::vector<std::string> fields;
    for (const Comparison& comparison : architecture.comparisons) {
      RatioSummary summary;
      int possible = 0;
      for (const auto& [length, function] : group.functions) {
        const Figure ratio = catalogue.figures.ratio_of(architecture, function, comparison);
        if (ratio.value) summary.add(length, *ratio.value);
        possible += ratio.is_possible;
      }
      if (summary.count() == 0) {
        fields.insert(fields.end(), 2, shown(Figure{std::nullopt, possible > 0}, 2));
        continue;
      }
      const std::string part = "<span class=\"at\">(" + std::to_string(summary.count()) + " of " +
                               std::to_string(possible) + ")</span> ";
      fields.push_back((summary.count() < possible ? part : "") + fixed(summary.mean(), 2));
      fields.push_back(fixed(summary.lowest(), 2) + " <span class=\"at\">at&#160;" +
                       std::to_string(summary.lowest_length()) + "</span>");
    }
    rows += table_row({group.transform, title(group.precision)}, fields);
  }
  return table("Speed, " + architecture.name, table_head({"Transform", "Precision"}, titles), rows);
}

}  // namespace pages
