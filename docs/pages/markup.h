// Small helpers for writing HTML and SVG.
#pragma once

#include <string>
#include <string_view>

namespace pages {

struct Size {
  double width = 0, height = 0;
};

struct Picture {
  std::string svg;
  Size size;
};

// Text with the characters that markup gives a meaning written as entities.
std::string escaped(std::string_view text);

// A number with so many digits behind the point.
std::string fixed(double value, int digits);
// A coordinate: at most one digit behind the point.
std::string coordinate(double value);

// About as wide as the text comes out in the sans-serif faces that readers have.
double text_width(std::string_view text, double font_size);

}  // namespace pages
