// The manual as a page: as much of Markdown as it is written in.
#pragma once

#include <string>

namespace pages {

// Headings, paragraphs, lists, tables, fenced code; in lines code, emphasis and links. A heading
// has the identifier that links to it have elsewhere: "#in-place-alignment-threads". Links that
// lead out of the document are left out, up to their text.
std::string markdown_body(const std::string& markdown);

}  // namespace pages
