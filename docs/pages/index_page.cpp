#include <algorithm>
#include <functional>

#include "docs/pages/chart.h"
#include "docs/pages/markup.h"
#include "docs/pages/site.h"
#include "docs/pages/speed_tables.h"
#include "docs/pages/tables.h"

namespace pages {
namespace {

using gen::Precision;
using FigureOf = std::function<Figure(const Entry&)>;

// A chart of one figure in one precision, a series a transform. The inverse complex transforms are
// left out: their figures are those of the forward ones up to little.
std::string chart(const Catalogue& catalogue, Chart chart, Precision precision,
                  const FigureOf& figure) {
  for (const Transform transform : {Transform::kComplexForward, Transform::kRealForward,
                                    Transform::kRealInverse, Transform::kHartley}) {
    Series& series = chart.series.emplace_back(Series{short_title(transform), {}});
    for (const auto& [length, entries] : catalogue.by_length) {
      const Figure found = figure(entries.at({transform, precision}));
      if (found.value) series.values[length] = *found.value;
    }
  }
  chart.title += ", " + title(precision) + " precision";
  return chart_picture(chart);
}

Figure operations(const Entry& entry) {
  return {entry.counts.additions + entry.counts.multiplications};
}
Figure error(const Entry& entry) { return {entry.error}; }

// The architecture of most readers, and what runs there.
const Architecture& first() { return kArchitectures.front(); }
const Comparison& first_comparison() { return first().comparisons.front(); }

std::string charts(const Catalogue& catalogue) {
  std::string text;
  const auto both_precisions = [&](const Chart& form, const FigureOf& figure) {
    for (const Precision precision : kPrecisions) {
      text += chart(catalogue, form, precision, figure);
    }
  };
  for (const Architecture& architecture : kArchitectures) {
    const Comparison& comparison = architecture.comparisons.front();
    both_precisions({title(comparison), "times", false, 2, 1, {}}, [&](const Entry& entry) {
      return catalogue.figures.ratio_of(architecture, entry.kernel.name, comparison);
    });
  }
  both_precisions({"Error in units of u", "u", false, 2, 0, {}}, error);
  both_precisions({"Additions and multiplications", "operations", true, 0, 0, {}}, operations);
  return "<div class=\"charts\">\n" + text + "</div>\n";
}

std::string largest_errors(const Catalogue& catalogue) {
  std::string rows;
  for (const Group& group : groups(catalogue)) {
    std::pair<double, int> worst = {0, 0};
    for (const auto& [length, function] : group.functions) {
      const std::optional<double> error = catalogue.figures.error_of(function);
      if (error) worst = std::max(worst, {*error, length});
    }
    rows += table_row({group.transform, title(group.precision)},
                      {worst.second == 0 ? shown(Figure(), 2)
                                         : fixed(worst.first, 2) + " <span class=\"at\">at&#160;" +
                                               std::to_string(worst.second) + "</span>"});
  }
  return table("Largest errors", table_head({"Transform", "Precision"}, {"Largest error, u"}),
               rows);
}

std::string length_table(const Catalogue& catalogue, Precision precision) {
  std::string head = "<tr><th rowspan=\"2\" class=\"n\">N</th><th rowspan=\"2\">Factors</th>";
  std::string second = "<tr>";
  for (const Transform transform : kTransforms) {
    head += "<th colspan=\"4\" class=\"group\">" + short_title(transform) + "</th>";
    second +=
        "<th class=\"n first\">Opera&#173;tions</th><th class=\"n\">Error</th>"
        "<th class=\"n\">Cycles</th><th class=\"n\">Ratio</th>";
  }
  std::string rows;
  for (const auto& [length, entries] : catalogue.by_length) {
    rows += "<tr><td class=\"n\"><a href=\"" + length_page_name(length) + "\">" +
            std::to_string(length) + "</a></td><td>" +
            (is_prime(length) ? "prime" : factors(length)) + "</td>";
    for (const Transform transform : kTransforms) {
      const Entry& entry = entries.at({transform, precision});
      const std::string& name = entry.kernel.name;
      const Figures& figures = catalogue.figures;
      const auto cell = [](const std::string& kind, const std::string& text) {
        return "<td class=\"" + kind + "\">" + text + "</td>";
      };
      rows += cell("n first", shown(operations(entry), 0)) + cell("n", shown(error(entry), 2)) +
              cell("n", shown(figures.cycles_of(first(), name, first_comparison().level), 0)) +
              cell("n", shown(figures.ratio_of(first(), name, first_comparison()), 2));
    }
    rows += "</tr>\n";
  }
  return "<h3 id=\"" + title(precision) + "\">" +
         (precision == Precision::kSingle ? "Single precision" : "Double precision") + "</h3>\n" +
         "<div class=\"dense\">" +
         table("All lengths, " + title(precision) + " precision", head + "</tr>" + second + "</tr>",
               rows) +
         "</div>\n";
}

}  // namespace

std::string index_page(const Catalogue& catalogue) {
  std::string speeds, tables;
  for (const Architecture& architecture : kArchitectures) {
    speeds += "<h3><a href=\"" + speed_page_name(architecture) + "\">" + architecture.name +
              "</a></h3>\n" + speed_summary(catalogue, architecture);
  }
  for (const Precision precision : kPrecisions) tables += length_table(catalogue, precision);
  const std::string reading = kReadingPageName, finder = kFinderPageName, others = kOthersPageName;
  return page(
      "zulgen: all lengths",
      "<h1>Transforms of length 2 to 64</h1>\n"
      "<p class=\"lead\">One function a length, fully unrolled: complex and real Fourier "
      "transforms "
      "and the Hartley transform, in single and double precision. Every length has a page with its "
      "decomposition, its data flow and its <a href=\"" +
          reading + "#figures\">figures</a>. Transforms of other lengths have <a href=\"" + others +
          "\">a page of their own</a>; <a href=\"" + finder +
          "\">the finder</a> leads to every function.</p>\n"
          "<h2>Speed</h2>\n<p>A peer’s time over ours, over all lengths: above 1, ours is "
          "faster.</p>\n" +
          speeds + kNotMeasuredNote + "<h2>Exactness</h2>\n" + largest_errors(catalogue) +
          "<h2>Against length</h2>\n<p>The same in figures: <a href=\"#single\">single</a> and <a "
          "href=\"#double\">double precision</a>, and <a href=\"" +
          speed_page_name(kArchitectures.back()) + "\">" + kArchitectures.back().name +
          "</a>.</p>\n" + charts(catalogue) +
          "<h2>All lengths</h2>\n<p>Operations are additions and multiplications, the error is in "
          "units of u, cycles are those of " +
          first_comparison().level + ", and the ratio is " + title(first_comparison()) + ".</p>\n" +
          tables + kNotMeasuredNote);
}

}  // namespace pages
