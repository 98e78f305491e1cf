#include "docs/pages/site.h"

#include "docs/pages/markdown.h"
#include "docs/pages/markup.h"

namespace pages {

std::string speed_page_name(const Architecture& architecture) {
  return "speed-" + architecture.name + ".html";
}

std::string manual_page(const std::string& markdown) {
  return page("zulgen: manual", "<div class=\"prose\">\n" + markdown_body(markdown) + "</div>\n");
}

std::string page(const std::string& title, const std::string& body, const std::string& script) {
  const auto link = [](const std::string& file, const std::string& text) {
    return "<a href=\"" + file + "\">" + text + "</a>\n";
  };
  std::string speeds;
  for (const Architecture& architecture : kArchitectures) {
    speeds += link(speed_page_name(architecture), "Speed, " + architecture.name);
  }
  return "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\"/>\n"
         "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\"/>\n"
         "<title>" +
         escaped(title) + "</title>\n<link rel=\"stylesheet\" href=\"style.css\"/>\n" +
         (script.empty() ? "" : "<script src=\"" + script + "\" defer=\"defer\"></script>\n") +
         "</head>\n<body>\n<nav>\n" + link(kIndexPageName, "All lengths") +
         link(kFinderPageName, "Find a function") + speeds +
         link(kOthersPageName, "Other lengths") +
         link(kReadingPageName, "How to read these pages") + link(kManualPageName, "Manual") +
         "</nav>\n<main>\n" + body + "</main>\n</body>\n</html>\n";
}

}  // namespace pages
