// Draws a decomposition from the whole on the left to the blocks on the right.
#pragma once

#include <string>

#include "docs/pages/decomposition.h"

namespace pages {

// An SVG element, styled by the page.
std::string tree_picture(const Branch& root);

}  // namespace pages
