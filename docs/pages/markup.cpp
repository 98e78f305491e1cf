#include "docs/pages/markup.h"

#include <algorithm>
#include <cstdio>

namespace pages {

std::string escaped(std::string_view text) {
  std::string result;
  for (char c : text) {
    switch (c) {
      case '&':
        result += "&amp;";
        break;
      case '<':
        result += "&lt;";
        break;
      case '>':
        result += "&gt;";
        break;
      case '"':
        result += "&quot;";
        break;
      default:
        result += c;
    }
  }
  return result;
}

std::string fixed(double value, int digits) {
  char text[64];
  std::snprintf(text, sizeof text, "%.*f", digits, value);
  return text;
}

std::string coordinate(double value) {
  std::string text = fixed(value, 1);
  if (text.ends_with(".0")) text.resize(text.size() - 2);
  return text == "-0" ? "0" : text;
}

double text_width(std::string_view text, double font_size) {
  // Bytes that continue a UTF-8 character have no width of their own.
  const auto characters =
      std::count_if(text.begin(), text.end(), [](char c) { return (c & 0xc0) != 0x80; });
  return 0.58 * font_size * static_cast<double>(characters);
}

}  // namespace pages
