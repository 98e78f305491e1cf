// Draws a decomposition from the whole on the left to the blocks on the right.
#pragma once

#include "docs/pages/decomposition.h"
#include "docs/pages/markup.h"

namespace pages {

// An SVG element, styled by the page.
Picture tree_picture(const Branch& root);

}  // namespace pages
