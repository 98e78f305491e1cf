// The pages: each function gives one file's text.
#pragma once

#include <string>

#include "docs/pages/catalogue.h"
#include "docs/pages/flow_picture.h"

namespace pages {

// All lengths at a glance: charts, a table that leads to their pages, what the figures mean.
std::string index_page(const Catalogue& catalogue);

// Everything about one length. `flow` is the picture from flow_of_length().
std::string length_page(const Catalogue& catalogue, int length, const Picture& flow);

// The data flow of the real forward transform in double precision: it has no lane moves, and the
// arithmetic that the other transforms are made of. `style` is the picture's style sheet.
Picture flow_of_length(const Catalogue& catalogue, int length, const std::string& style);

// The transforms of other lengths; empty if the library has none.
std::string others_page(const Catalogue& catalogue);

// File names.
std::string length_page_name(int length);
std::string flow_picture_name(int length);
inline constexpr const char* kOthersPageName = "others.html";

}  // namespace pages
