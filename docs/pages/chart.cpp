#include "docs/pages/chart.h"

#include <algorithm>
#include <cmath>

#include "docs/pages/markup.h"

namespace pages {
namespace {

constexpr double kWidth = 560, kHeight = 280, kLeft = 62, kRight = 10, kTop = 10, kBottom = 34;
constexpr int kFirstLength = 2, kLastLength = 64;

std::string number(double value) {
  std::string text = fixed(value, 2);
  while (text.ends_with('0')) text.pop_back();
  if (text.ends_with('.')) text.pop_back();
  return text;
}

std::string at(const char* attribute, double value) {
  return std::string(" ") + attribute + "=\"" + coordinate(value) + "\"";
}

class Plot {
 public:
  explicit Plot(const Chart& chart) : chart_(chart) {
    double low = chart.is_logarithmic ? 1e300 : 0, high = chart.reference;
    for (const Series& series : chart.series) {
      for (const auto& [length, value] : series.values) {
        low = std::min(low, value);
        high = std::max(high, value);
      }
    }
    ticks_ = ticks(low, high, chart.is_logarithmic);
  }

  std::string draw() const {
    std::string text = "<svg class=\"chart\" aria-hidden=\"true\" viewBox=\"0 0 " +
                       coordinate(kWidth) + " " + coordinate(kHeight) + "\">\n" + axes();
    for (std::size_t i = 0; i < chart_.series.size(); ++i) {
      if (chart_.series[i].values.empty()) continue;
      text += "<g class=\"s" + std::to_string(i) + "\">" + drawn(chart_.series[i], i) + "</g>\n";
    }
    return text + "</svg>\n";
  }

  std::string legend() const {
    std::string items;
    for (std::size_t i = 0; i < chart_.series.size(); ++i) {
      if (chart_.series[i].values.empty()) continue;
      items += "<li><svg class=\"s" + std::to_string(i) +
               "\" aria-hidden=\"true\" width=\"10\" height=\"10\">" + mark(i, 5, 5) + "</svg>" +
               escaped(chart_.series[i].name) + "</li>";
    }
    return "<ul class=\"legend\">" + items + "</ul>\n";
  }

 private:
  double x(int length) const {
    return kLeft + (kWidth - kLeft - kRight) * (length - kFirstLength + 0.5) /
                       (kLastLength - kFirstLength + 1);
  }

  double y(double value) const {
    const auto scaled = [&](double v) { return chart_.is_logarithmic ? std::log(v) : v; };
    const double part =
        (scaled(value) - scaled(ticks_.front())) / (scaled(ticks_.back()) - scaled(ticks_.front()));
    return kHeight - kBottom - (kHeight - kTop - kBottom) * part;
  }

  std::string axes() const {
    std::string text = "<g class=\"axes\">";
    const auto line = [&](const char* kind, double value) {
      return std::string("<line class=\"") + kind + "\"" + at("x1", kLeft) +
             at("x2", kWidth - kRight) + at("y1", y(value)) + at("y2", y(value)) + "/>";
    };
    for (double tick : ticks_) {
      text += line("grid", tick) + "<text class=\"y\"" + at("x", kLeft - 7) + at("y", y(tick) + 4) +
              ">" + number(tick) + "</text>";
    }
    if (chart_.reference != 0) text += line("reference", chart_.reference);
    for (int length = 8; length <= kLastLength; length += 8) {
      text += "<text class=\"x\"" + at("x", x(length)) + at("y", kHeight - kBottom + 18) + ">" +
              std::to_string(length) + "</text>";
    }
    return text + "<text class=\"x\"" + at("x", x(kFirstLength)) + at("y", kHeight - kBottom + 18) +
           ">2</text></g>\n";
  }

  std::string drawn(const Series& series, std::size_t index) const {
    std::string line, marks;
    for (const auto& [length, value] : series.values) {
      line += (line.empty() ? "M" : "L") + coordinate(x(length)) + " " + coordinate(y(value));
      marks += mark(index, x(length), y(value),
                    series.name + ", N = " + std::to_string(length) + ": " +
                        fixed(value, chart_.digits) + " " + chart_.unit);
    }
    return "<path d=\"" + line + "\"/>" + marks;
  }

  // A disc, a square, a diamond or a triangle.
  static std::string mark(std::size_t series, double x, double y, const std::string& hint = "") {
    const std::string title = hint.empty() ? "" : "<title>" + escaped(hint) + "</title>";
    if (series == 0) {
      return "<circle" + at("cx", x) + at("cy", y) + " r=\"2.8\">" + title + "</circle>";
    }
    std::vector<std::pair<double, double>> corners;
    if (series == 1) corners = {{-2.5, -2.5}, {2.5, -2.5}, {2.5, 2.5}, {-2.5, 2.5}};
    if (series == 2) corners = {{0, -3.6}, {3.6, 0}, {0, 3.6}, {-3.6, 0}};
    if (series == 3) corners = {{0, -3.4}, {3.2, 2.6}, {-3.2, 2.6}};
    std::string points;
    for (const auto& [dx, dy] : corners) {
      points += (points.empty() ? "" : " ") + coordinate(x + dx) + "," + coordinate(y + dy);
    }
    return "<polygon points=\"" + points + "\">" + title + "</polygon>";
  }

  const Chart& chart_;
  std::vector<double> ticks_;
};

}  // namespace

std::vector<double> ticks(double low, double high, bool is_logarithmic) {
  std::vector<double> result;
  if (is_logarithmic) {
    double decade = std::pow(10, std::floor(std::log10(low)));
    while (result.empty() || result.back() < high) {
      for (double step : {1, 2, 5}) {
        // A step that is still below the lowest value gives way to the next one.
        if (step * decade <= low) result.clear();
        if (result.empty() || result.back() < high) result.push_back(step * decade);
      }
      decade *= 10;
    }
    return result;
  }
  if (high <= low) high = low + 1;
  const double wanted = (high - low) / 5, decade = std::pow(10, std::floor(std::log10(wanted)));
  double step = 10 * decade;
  for (double candidate : {5, 2, 1}) {
    if (candidate * decade >= wanted) step = candidate * decade;
  }
  const double first = std::floor(low / step) * step;
  for (int i = 0; result.empty() || result.back() < high; ++i) result.push_back(first + i * step);
  return result;
}

std::string chart_picture(const Chart& chart) {
  const bool is_empty = std::all_of(chart.series.begin(), chart.series.end(),
                                    [](const Series& series) { return series.values.empty(); });
  if (is_empty) return "";
  const Plot plot(chart);
  return "<figure>\n<figcaption>" + escaped(chart.title) + "</figcaption>\n" + plot.legend() +
         plot.draw() + "</figure>\n";
}

}  // namespace pages
