#include "docs/pages/markup.h"
#include "docs/pages/site.h"
#include "docs/pages/tables.h"

namespace pages {
namespace {

std::string walsh_hadamard(const std::vector<Entry>& entries) {
  std::string rows;
  for (const Entry& entry : entries) {
    rows += table_row(
        {"<code>" + entry.kernel.name + "</code>", escaped(entry.kernel.recipe)},
        {std::to_string(entry.kernel.length()), std::to_string(entry.counts.additions),
         shown(entry.error, 2), shown(entry.speed.cycles, 0), shown(entry.speed.ratio, 2)});
  }
  return "<h2>Walsh-Hadamard transform</h2>\n"
         "<p>Order N is a transform of 2<sup>N</sup> samples: N stages of butterflies, lowest bit "
         "of the index first, and one product a sample. Short orders are straight-line code; long "
         "ones run in passes through a work buffer, along rows and then down columns.</p>\n" +
         table(
             "<tr><th>Kernel</th><th>Passes</th><th class=\"n\">Samples</th>"
             "<th class=\"n\">Additions</th><th class=\"n\">Error, u</th>"
             "<th class=\"n\">Cycles</th><th class=\"n\">FFTW / ours</th></tr>",
             rows);
}

std::string dct4(const std::vector<Dct4Speed>& speeds) {
  std::string rows;
  for (const Dct4Speed& row : speeds) {
    rows += table_row({escaped(row.type)}, {std::to_string(row.length), shown(row.speed.cycles, 0),
                                            shown(row.speed.ratio, 2)});
  }
  const std::string figures =
      rows.empty() ? ""
                   : table(
                         "<tr><th>Type</th><th class=\"n\">Length</th><th class=\"n\">Cycles</th>"
                         "<th class=\"n\">FFTW / ours</th></tr>",
                         rows);
  return "<h2>Discrete cosine transform of type IV</h2>\n"
         "<p>Of a length chosen at run time, a power of two from 2 on. "
         "<code>zulgDCT4InitAlloc_32f</code> plans it once, <code>zulgDCT4_32f</code> then runs it "
         "any number of times.</p>\n" +
         figures;
}

}  // namespace

std::string others_page(const Catalogue& catalogue) {
  std::string body;
  if (!catalogue.walsh_hadamard.empty()) body += walsh_hadamard(catalogue.walsh_hadamard);
  if (catalogue.has_dct4) body += dct4(catalogue.figures.dct4);
  if (body.empty()) return "";
  return page(
      "zulgen: transforms of other lengths", "<a href=\"index.html\">All lengths</a>",
      "<h1>Transforms of other lengths</h1>\n" + body +
          "<p class=\"note\"><a href=\"index.html#figures\">What the figures mean</a></p>\n");
}

}  // namespace pages
