// Charts of figures against the length of the transform.
#pragma once

#include <map>
#include <string>
#include <vector>

namespace pages {

struct Series {
  std::string name;
  std::map<int, double> values;  // by length
};

struct Chart {
  std::string title, unit;
  bool is_logarithmic = false;
  int digits = 0;              // of the values, behind the point
  double reference = 0;        // a line at this value, if it isn't 0
  std::vector<Series> series;  // four at the most; each gets a colour and a mark of its own
};

// A figure with its legend, styled by the page. The drawing is for the eye alone: who shows it
// shows its values in a table, too. Empty if there are no values.
std::string chart_picture(const Chart& chart);

// Round numbers from at most `low` to at least `high`; powers of ten and their halves and fifths on
// a logarithmic axis.
std::vector<double> ticks(double low, double high, bool is_logarithmic);

}  // namespace pages
