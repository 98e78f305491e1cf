#include "docs/pages/markdown.h"

#include <cctype>
#include <sstream>
#include <vector>

#include "docs/pages/markup.h"
#include "docs/pages/tables.h"

namespace pages {
namespace {

// The text of a line, from one delimiter to the next by turns.
std::string in_line(const std::string& text) {
  std::string result;
  for (std::size_t at = 0; at < text.size();) {
    const auto enclosed = [&](const std::string& mark, const char* element, bool is_markup) {
      const std::size_t end = text.find(mark, at + mark.size());
      if (text.compare(at, mark.size(), mark) != 0 || end == std::string::npos) return false;
      const std::string inner = text.substr(at + mark.size(), end - at - mark.size());
      result += std::string("<") + element + ">" + (is_markup ? in_line(inner) : escaped(inner)) +
                "</" + element + ">";
      at = end + mark.size();
      return true;
    };
    if (enclosed("`", "code", false) || enclosed("**", "strong", true)) continue;
    const std::size_t middle = text[at] == '[' ? text.find("](", at) : std::string::npos;
    const std::size_t end = middle == std::string::npos ? middle : text.find(')', middle);
    if (end != std::string::npos) {
      const std::string inner = in_line(text.substr(at + 1, middle - at - 1));
      const std::string to = text.substr(middle + 2, end - middle - 2);
      const bool leads_here = to.starts_with("#");
      result += leads_here ? "<a href=\"" + escaped(to) + "\">" + inner + "</a>" : inner;
      at = end + 1;
    } else {
      result += escaped(text.substr(at++, 1));
    }
  }
  return result;
}

std::string identifier(const std::string& heading) {
  std::string result;
  for (const unsigned char c : heading) {
    if (c == ' ') result += '-';
    if (std::isalnum(c) || c == '-' || c == '_') result += static_cast<char>(std::tolower(c));
  }
  return result;
}

std::vector<std::string> cells(const std::string& line) {
  std::vector<std::string> result;
  std::istringstream fields(line.substr(1));
  for (std::string field; std::getline(fields, field, '|');) {
    const std::size_t begin = field.find_first_not_of(' '), end = field.find_last_not_of(' ');
    result.push_back(begin == std::string::npos ? ""
                                                : in_line(field.substr(begin, end + 1 - begin)));
  }
  return result;
}

class Converter {
 public:
  explicit Converter(const std::string& markdown) : in_(markdown) {}

  std::string convert() {
    next();
    while (there_) block();
    return text_;
  }

 private:
  void next() { there_ = static_cast<bool>(std::getline(in_, line_)); }

  void block() {
    if (line_.empty()) return next();
    if (line_[0] == '#') return heading();
    if (line_.starts_with("```")) return code();
    if (line_[0] == '|') return rows();
    if (line_.starts_with("- ")) return list();
    text_ += "<p>" + in_line(paragraph(0)) + "</p>\n";
  }

  // Up to the next line that begins something else.
  std::string paragraph(std::size_t from) {
    std::string joined = line_.substr(from);
    for (next(); there_ && !line_.empty() && !line_.starts_with("- ") && line_[0] != '|' &&
                 line_[0] != '#' && !line_.starts_with("```");
         next()) {
      joined += " " + line_.substr(line_.find_first_not_of(' '));
    }
    return joined;
  }

  void heading() {
    const std::size_t level = line_.find(' ');
    const std::string words = line_.substr(level + 1), element = "h" + std::to_string(level);
    text_ += "<" + element + " id=\"" + identifier(words) + "\">" + in_line(words) + "</" +
             element + ">\n";
    next();
  }

  void code() {
    text_ += "<pre class=\"scroll\" tabindex=\"0\"><code>";
    for (next(); there_ && line_ != "```"; next()) text_ += escaped(line_) + "\n";
    text_ += "</code></pre>\n";
    next();
  }

  void rows() {
    const std::string head = table_head(cells(line_), {});
    std::string body;
    next();  // the line of dashes
    for (next(); there_ && line_.starts_with("|"); next()) body += table_row(cells(line_), {});
    text_ += table("Table", head, body);
  }

  void list() {
    text_ += "<ul>\n";
    while (there_ && line_.starts_with("- ")) {
      text_ += "<li>" + in_line(paragraph(2)) + "</li>\n";
    }
    text_ += "</ul>\n";
  }

  std::istringstream in_;
  std::string line_, text_;
  bool there_ = true;
};

}  // namespace

std::string markdown_body(const std::string& markdown) { return Converter(markdown).convert(); }

}  // namespace pages
