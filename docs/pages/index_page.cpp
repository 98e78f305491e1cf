#include <algorithm>
#include <functional>

#include "docs/pages/chart.h"
#include "docs/pages/markup.h"
#include "docs/pages/site.h"
#include "docs/pages/tables.h"

namespace pages {
namespace {

using gen::Precision;
using Figure = std::function<std::optional<double>(const Entry&)>;

std::optional<double> operations(const Entry& entry) {
  return entry.counts.additions + entry.counts.multiplications;
}
std::optional<double> error(const Entry& entry) { return entry.error; }
std::optional<double> cycles(const Entry& entry) { return entry.speed.cycles; }
std::optional<double> ratio(const Entry& entry) { return entry.speed.ratio; }

std::map<int, double> values(const Catalogue& catalogue, const Key& key, const Figure& figure) {
  std::map<int, double> result;
  for (const auto& [length, entries] : catalogue.by_length) {
    const std::optional<double> value = figure(entries.at(key));
    if (value) result[length] = *value;
  }
  return result;
}

// A chart of one figure in one precision, a series a transform. The inverse complex transforms are
// left out: their figures are those of the forward ones up to little.
std::string chart(const Catalogue& catalogue, Chart chart, Precision precision,
                  const Figure& figure) {
  for (const Transform transform : {Transform::kComplexForward, Transform::kRealForward,
                                    Transform::kRealInverse, Transform::kHartley}) {
    chart.series.push_back(
        {short_title(transform), values(catalogue, {transform, precision}, figure)});
  }
  chart.title += ", " + title(precision) + " precision";
  return chart_picture(chart);
}

std::string charts(const Catalogue& catalogue) {
  std::string text;
  const auto both_precisions = [&](const Chart& form, const Figure& figure) {
    for (const Precision precision : kPrecisions) {
      text += chart(catalogue, form, precision, figure);
    }
  };
  both_precisions({"FFTW’s time over ours", "times", false, 2, 1, {}}, ratio);
  both_precisions({"Core cycles a call", "cycles", true, 1, 0, {}}, cycles);
  both_precisions({"Error in units of u", "u", false, 2, 0, {}}, error);
  both_precisions({"Additions and multiplications", "operations", true, 0, 0, {}}, operations);
  return "<div class=\"charts\">\n" + text + "</div>\n";
}

// Worst error and speed over all lengths.
std::string summary(const Catalogue& catalogue) {
  const auto at = [](double value, int length) {
    if (length == 0) return std::string("–");
    return fixed(value, 2) + " <span class=\"at\">at&#160;" + (length < 10 ? "&#8199;" : "") +
           std::to_string(length) + "</span>";
  };
  std::string rows;
  for (const Transform transform : kTransforms) {
    for (const Precision precision : kPrecisions) {
      const Key key(transform, precision);
      std::pair<double, int> worst = {0, 0};
      for (const auto& [length, value] : values(catalogue, key, error)) {
        worst = std::max(worst, {value, length});
      }
      RatioSummary speed;
      for (const auto& [length, value] : values(catalogue, key, ratio)) speed.add(length, value);
      rows += table_row(
          {title(transform), title(precision)},
          {at(worst.first, worst.second), speed.count() > 0 ? fixed(speed.mean(), 2) : "–",
           at(speed.lowest(), speed.lowest_length())});
    }
  }
  return table(
      "<tr><th>Transform</th><th>Precision</th><th class=\"n\">Largest error, u</th>"
      "<th class=\"n\">FFTW / ours, mean</th><th class=\"n\">Lowest</th></tr>",
      rows);
}

std::string length_table(const Catalogue& catalogue) {
  const Key groups[] = {{Transform::kComplexForward, Precision::kSingle},
                        {Transform::kComplexForward, Precision::kDouble},
                        {Transform::kRealForward, Precision::kSingle},
                        {Transform::kRealForward, Precision::kDouble}};
  std::string head = "<tr><th rowspan=\"2\" class=\"n\">N</th><th rowspan=\"2\">Factors</th>";
  std::string second = "<tr>";
  for (const Key& group : groups) {
    head += "<th colspan=\"3\" class=\"group\">" + short_title(group.first) + ", " +
            title(group.second) + "</th>";
    second +=
        "<th class=\"n first\">Operations</th><th class=\"n\">Cycles</th>"
        "<th class=\"n\">FFTW / ours</th>";
  }
  std::string rows;
  for (const auto& [length, entries] : catalogue.by_length) {
    rows += "<tr><td class=\"n\"><a href=\"" + length_page_name(length) + "\">" +
            std::to_string(length) + "</a></td><td>" +
            (is_prime(length) ? "prime" : factors(length)) + "</td>";
    for (const Key& group : groups) {
      const Entry& entry = entries.at(group);
      rows += "<td class=\"n first\">" + shown(operations(entry), 0) + "</td><td class=\"n\">" +
              shown(cycles(entry), 0) + "</td><td class=\"n\">" + shown(ratio(entry), 2) + "</td>";
    }
    rows += "</tr>\n";
  }
  return table(head + "</tr>" + second + "</tr>", rows);
}

std::string machine(const Figures& figures) {
  if (figures.machine.empty()) return "<p>Nothing is measured yet.</p>\n";
  std::string parts;
  for (const auto& [part, what] : figures.machine) {
    parts += "<dt>" + escaped(part) + "</dt><dd>" + escaped(what) + "</dd>\n";
  }
  return "<dl class=\"machine\">\n" + parts + "</dl>\n";
}

std::string meaning_of_figures(const Figures& figures) {
  return "<h2 id=\"figures\">What the figures mean</h2>\n"
         "<dl>\n"
         "<dt>Operations</dt><dd>Additions (and subtractions) and multiplications by constants, of "
         "real numbers, counted on the data flow that the code is written from. Equal operations "
         "count once; products by 0, 1 and −1 don’t count, nor does the scaling of the "
         "result.</dd>\n"
         "<dt>Error</dt><dd>The L2 norm of the error over the L2 norm of the exact result, taken "
         "over 100 inputs of uniformly distributed random samples together, in units of the "
         "rounding error u: 2<sup>−24</sup> in single precision, 2<sup>−53</sup> in double. The "
         "exact result is the defining sum in quad precision.</dd>\n"
         "<dt>Cycles</dt><dd>Core cycles of one call on arrays aligned on 16 bytes that are in the "
         "nearest cache, out of place, with <code>ZULG_SCALE_NONE</code>: the median of the lowest "
         "cluster of undisturbed samples.</dd>\n"
         "<dt>FFTW / ours</dt><dd>FFTW’s cycles over ours; above 1, ours is faster. FFTW’s are the "
         "best of four times planning with <code>FFTW_PATIENT</code>, for the same transform in "
         "the same precision, held to SSE2 as our kernels are. For real transforms it may choose "
         "the order of its packed spectrum. Means are geometric.</dd>\n"
         "</dl>\n"
         "<h3>Where they were measured</h3>\n" +
         machine(figures) +
         "<p><code>bench/measure.sh BUILD_DIR</code>, run in the sources, takes all measured "
         "figures anew on your machine; the next build puts them on these pages. "
         "<code>zulgen-bench --filter CToC_12_</code> shows a single length.</p>\n";
}

}  // namespace

std::string index_page(const Catalogue& catalogue) {
  const bool has_others = !catalogue.walsh_hadamard.empty() || catalogue.has_dct4;
  const std::string others = has_others
                                 ? std::string(" Transforms of other lengths have <a href=\"") +
                                       kOthersPageName + "\">a page of their own</a>."
                                 : "";
  return page("zulgen: all lengths", "<a href=\"index.html\">zulgen reference</a>",
              "<h1>Transforms of length 2 to 64</h1>\n"
              "<p class=\"lead\">One function a length, fully unrolled: complex and real Fourier "
              "transforms and the Hartley transform, in single and double precision. Every length "
              "has a page with its decomposition, its data flow and its <a "
              "href=\"#figures\">figures</a>." +
                  others + "</p>\n" + summary(catalogue) + "<h2>Against length</h2>\n" +
                  charts(catalogue) + "<h2>All lengths</h2>\n" + length_table(catalogue) +
                  meaning_of_figures(catalogue.figures));
}

}  // namespace pages
