#include "docs/pages/chart.h"
#include "docs/pages/site.h"
#include "docs/pages/speed_tables.h"

namespace pages {
namespace {

// Our levels beside the peers as they are installed. The table below holds the rest.
std::string cycles_chart(const Figures& figures, const Architecture& architecture,
                         const Group& group) {
  std::vector<std::string> columns = architecture.levels;
  columns.insert(columns.end(), {"fftw", "kissfft"});
  Chart chart = {"Core cycles a call", "cycles", true, 1, 0, {}};
  for (const std::string& column : columns) {
    Series& series = chart.series.emplace_back(Series{column_title(column), {}});
    for (const auto& [length, function] : group.functions) {
      const Figure cycles = figures.cycles_of(architecture, function, column);
      if (cycles.value) series.values[length] = *cycles.value;
    }
  }
  return chart_picture(chart);
}

}  // namespace

std::string speed_page(const Catalogue& catalogue, const Architecture& architecture) {
  std::string sections;
  for (const Group& group : groups(catalogue)) {
    if (group.functions.back().first > 64) continue;  // the page of other lengths has these
    std::vector<SpeedRow> rows;
    for (const auto& [length, function] : group.functions) {
      rows.push_back(
          {"<a href=\"" + length_page_name(length) + "\">" + std::to_string(length) + "</a>",
           function});
    }
    sections += "<section>\n<h3>" + group.transform + ", " + title(group.precision) + "</h3>\n" +
                cycles_chart(catalogue.figures, architecture, group) +
                "<details><summary>In figures</summary>\n" +
                speed_table(catalogue.figures, architecture, "N", rows) +
                "</details>\n</section>\n";
  }
  return page("zulgen: speed, " + architecture.name,
              "<h1>Speed <small>" + architecture.name + "</small></h1>\n" +
                  "<p>A peer’s time over ours, over all lengths: above 1, ours is faster. <a "
                  "href=\"" +
                  std::string(kReadingPageName) + "#figures\">What the figures mean</a></p>\n" +
                  speed_summary(catalogue, architecture) + kNotMeasuredNote +
                  "<h2>Against length</h2>\n<div class=\"charts\">\n" + sections + "</div>\n");
}

}  // namespace pages
