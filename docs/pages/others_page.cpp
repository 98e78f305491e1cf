#include "docs/pages/markup.h"
#include "docs/pages/site.h"
#include "docs/pages/speed_tables.h"
#include "docs/pages/tables.h"

namespace pages {
namespace {

std::string speeds(const Catalogue& catalogue, const std::vector<SpeedRow>& rows,
                   const std::string& heading) {
  std::string text;
  for (const Architecture& architecture : kArchitectures) {
    text += "<h3>Cycles, " + architecture.name + "</h3>\n" +
            speed_table(catalogue.figures, architecture, heading, rows);
  }
  return text + kNotMeasuredNote;
}

std::string walsh_hadamard(const Catalogue& catalogue) {
  std::string kernels;
  std::vector<SpeedRow> rows;
  for (const Entry& entry : catalogue.walsh_hadamard) {
    const std::string& name = entry.kernel.name;
    rows.push_back({"<code>" + name + "</code>", name});
    kernels += table_row({rows.back().label, escaped(entry.kernel.recipe)},
                         {std::to_string(entry.kernel.length()),
                          std::to_string(entry.counts.additions), shown(entry.error, 2)});
  }
  return "<h2 id=\"walsh-hadamard\">Walsh-Hadamard transform</h2>\n"
         "<p>Order N is a transform of 2<sup>N</sup> samples: N stages of butterflies, lowest bit "
         "of the index first, and one product a sample. Short orders are straight-line code; long "
         "ones run in passes through a work buffer, along rows and then down columns. FFTW’s plan "
         "is that of a transform of 2 by 2 by ... by 2 points.</p>\n" +
         table("Walsh-Hadamard kernels",
               table_head({"Kernel", "Passes"}, {"Samples", "Additions", "Error, u"}), kernels) +
         speeds(catalogue, rows, "Kernel");
}

std::string dct4(const Catalogue& catalogue) {
  std::string errors;
  std::vector<SpeedRow> rows, plans;
  for (const int length : catalogue.dct4_lengths) {
    std::vector<std::string> fields = {std::to_string(length)};
    for (const gen::Precision precision : kPrecisions) {
      const std::string name = dct4_name(precision, length);
      fields.push_back(shown(catalogue.figures.error_of(name), 2));
    }
    errors += table_row({}, fields);
  }
  for (const gen::Precision precision : kPrecisions) {
    for (const int length : catalogue.dct4_lengths) {
      const std::string name = dct4_name(precision, length);
      const std::string label = std::to_string(length) + ", " + title(precision);
      rows.push_back({label, name});
      plans.push_back({label + ", planning", std::string(name).insert(8, "Init")});
    }
  }
  rows.insert(rows.end(), plans.begin(), plans.end());
  return "<h2 id=\"dct-iv\">Discrete cosine transform of type IV</h2>\n"
         "<p>Of a length chosen at run time, a power of two from 2 on. "
         "<code>zulgDCT4InitAlloc_32f</code> plans it once, <code>zulgDCT4_32f</code> then runs it "
         "any number of times; FFTW’s plan is <code>FFTW_REDFT11</code>. Planning is measured with "
         "giving the plan back.</p>\n" +
         table("Errors of the DCT-IV",
               table_head({}, {"Length", "Error, u, single", "Error, u, double"}), errors) +
         speeds(catalogue, rows, "Length");
}

}  // namespace

std::string others_page(const Catalogue& catalogue) {
  return page("zulgen: transforms of other lengths",
              "<h1>Transforms of other lengths</h1>\n" + walsh_hadamard(catalogue) +
                  dct4(catalogue) + "<p class=\"note\"><a href=\"" + std::string(kReadingPageName) +
                  "#figures\">What the figures mean</a></p>\n");
}

}  // namespace pages
