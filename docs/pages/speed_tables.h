// Tables of measured times.
#pragma once

#include <string>
#include <vector>

#include "docs/pages/catalogue.h"

namespace pages {

struct SpeedRow {
  std::string label;     // markup
  std::string function;  // as the figures call it
};

// Cycles of the levels and the peers, then ratios; `heading` is that of the labels.
std::string speed_table(const Figures& figures, const Architecture& architecture,
                        const std::string& heading, const std::vector<SpeedRow>& rows);

// The ratios over all lengths of each group, as means and least values.
std::string speed_summary(const Catalogue& catalogue, const Architecture& architecture);

// What the tables' signs mean.
inline constexpr const char* kNotMeasuredNote =
    "<p class=\"note\">n.&#160;m.: not measured. –: there is no such transform.</p>\n";

}  // namespace pages
