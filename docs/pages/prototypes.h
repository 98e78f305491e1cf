// How the public headers declare the library's functions.
#pragma once

#include <map>
#include <string>

namespace pages {

// The functions that a header's text declares, by name, as a reader would write them: macros that
// take a name and a type are replaced by what they stand for.
std::map<std::string, std::string> prototypes_in(std::string header);

// Of all headers in a folder. Throws std::runtime_error if one can't be read.
std::map<std::string, std::string> prototypes_of(const std::string& folder);

}  // namespace pages
