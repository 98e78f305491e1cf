// The pages: each function gives one file's text.
#pragma once

#include <map>
#include <string>

#include "docs/pages/catalogue.h"
#include "docs/pages/flow_picture.h"

namespace pages {

// All lengths at a glance: charts, and tables that lead to their pages.
std::string index_page(const Catalogue& catalogue);

// The times of all lengths, of one architecture.
std::string speed_page(const Catalogue& catalogue, const Architecture& architecture);

// The data flow of the real forward transform in double precision: it has no lane moves, and the
// arithmetic that the other transforms are made of. `style` is the picture's style sheet.
struct Flow {
  FlowGraph graph;
  Picture picture;
};
Flow flow_of_length(const Catalogue& catalogue, int length, const std::string& style);

// Everything about one length.
std::string length_page(const Catalogue& catalogue, int length, const Flow& flow);

// The transforms of other lengths.
std::string others_page(const Catalogue& catalogue);

// Every exported function, in a table that the page's script searches. `prototypes` are by name.
std::string finder_page(const Catalogue& catalogue,
                        const std::map<std::string, std::string>& prototypes);

// What notation and figures mean, and where these were measured.
std::string reading_page(const Figures& figures);

// The manual, of its Markdown text.
std::string manual_page(const std::string& markdown);

// A whole page; `body` is markup. A page with a script has it in a file of its own.
std::string page(const std::string& title, const std::string& body, const std::string& script = "");

// File names.
std::string length_page_name(int length);
std::string flow_picture_name(int length);
std::string speed_page_name(const Architecture& architecture);
inline constexpr const char* kIndexPageName = "index.html";
inline constexpr const char* kFinderPageName = "finder.html";
inline constexpr const char* kFinderScriptName = "finder.js";
inline constexpr const char* kManualPageName = "manual.html";
inline constexpr const char* kOthersPageName = "others.html";
inline constexpr const char* kReadingPageName = "reading.html";

}  // namespace pages
