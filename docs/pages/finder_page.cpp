#include <algorithm>
#include <cctype>

#include "docs/pages/markup.h"
#include "docs/pages/site.h"
#include "docs/pages/speed_tables.h"
#include "docs/pages/tables.h"
#include "generate/manifest.h"

namespace pages {
namespace {

// What one function is looked for by, and what is told of it.
struct Found {
  std::string transform, precision, length;  // "any" if a call tells the length
  std::string words;                         // besides those of the prototype
  std::optional<gen::Counts> counts;
  std::optional<double> error;
  std::string page, manual;
};

std::string transform_of(const std::string& name) {
  const auto has = [&](const char* part) { return name.find(part) != std::string::npos; };
  if (has("Fwd_CToC")) return "Complex DFT, forward";
  if (has("Inv_CToC")) return "Complex DFT, inverse";
  if (has("DFTFwd_")) return "Real DFT, forward";
  if (has("DFTInv_")) return "Real DFT, inverse";
  if (has("Hartley")) return "Hartley";
  if (has("WHT")) return "Walsh-Hadamard";
  if (has("DCT4")) return "DCT-IV";
  return "Library";
}

// The manual's section.
std::string section_of(const std::string& name) {
  const auto has = [&](const char* part) { return name.find(part) != std::string::npos; };
  if (has("WHT")) return "#walsh-hadamard-transform";
  if (has("DCT4")) return "#dct-iv";
  if (has("RTo") || has("ToR_")) return "#packed-spectra-of-real-samples";
  return has("DFT") || has("Hartley") ? "#definitions" : "";
}

// A function that isn't a kernel.
Found found_of(const std::string& name) {
  Found found;
  found.transform = transform_of(name);
  found.length = "any";
  if (name.find("_32f") != std::string::npos) found.precision = "single";
  if (name.find("_64f") != std::string::npos) found.precision = "double";
  found.words = "run time length any";
  found.manual = kManualPageName + section_of(name);
  found.page = found.transform == "Walsh-Hadamard"
                   ? std::string(kOthersPageName) + "#walsh-hadamard"
               : found.transform == "DCT-IV" ? std::string(kOthersPageName) + "#dct-iv"
                                             : kIndexPageName;
  return found;
}

Found found_of(const gen::Kernel& kernel, const Entry& entry) {
  Found found = found_of(kernel.name);
  found.length = std::to_string(kernel.length());
  found.words = "length " + found.length;
  found.counts = entry.counts;
  found.error = entry.error;
  if (kernel.transform != gen::Transform::kWalshHadamard) {
    found.page = length_page_name(kernel.length());
  }
  return found;
}

std::map<std::string, Found> found_functions(const Catalogue& catalogue) {
  // A packed layout has the arithmetic of CCS, which the catalogue has.
  std::map<gen::Signature, const Entry*> entries;
  for (const auto& [length, of_length] : catalogue.by_length) {
    for (const auto& [key, entry] : of_length) entries[entry.kernel] = &entry;
  }
  for (const Entry& entry : catalogue.walsh_hadamard) entries[entry.kernel] = &entry;
  std::map<std::string, Found> result;
  for (const std::string& name : generate::exported_functions()) result[name] = found_of(name);
  for (const gen::Kernel& kernel : generate::all_kernels()) {
    gen::Signature signature = kernel;
    if (signature.layout != gen::Layout::kNone) signature.layout = gen::Layout::kCcs;
    result[kernel.name] = found_of(kernel, *entries.at(signature));
  }
  return result;
}

std::string row(const Catalogue& catalogue, const std::string& name, const Found& found,
                const std::string& prototype) {
  std::string words = found.transform + " " + found.precision + " " + found.words;
  std::transform(words.begin(), words.end(), words.begin(),
                 [](unsigned char c) { return std::tolower(c); });
  // The name leads to the page.
  const std::size_t at = prototype.find(name);
  const std::string shown_prototype = at == std::string::npos
                                          ? ""
                                          : escaped(prototype.substr(0, at)) + "<a href=\"" +
                                                found.page + "\">" + name + "</a>" +
                                                escaped(prototype.substr(at + name.size()));
  const Architecture& first = kArchitectures.front();
  const auto count = [&](int gen::Counts::*kind) {
    return found.counts ? std::to_string((*found.counts).*kind) : "";
  };
  std::string cells = "<td><code>" + shown_prototype + "</code></td>";
  for (const std::string& cell :
       {count(&gen::Counts::additions), count(&gen::Counts::multiplications),
        found.counts ? shown(found.error, 2) : "",
        found.counts ? shown(catalogue.figures.cycles_of(first, name, first.levels.back()), 1)
                     : ""}) {
    cells += "<td class=\"n\">" + cell + "</td>";
  }
  cells += "<td><a href=\"" + found.manual + "\">manual</a></td>";
  return "<tr data-transform=\"" + found.transform + "\" data-precision=\"" + found.precision +
         "\" data-length=\"" + found.length + "\" data-words=\"" + words + "\">" + cells +
         "</tr>\n";
}

std::string choice(const std::string& name, const std::string& all,
                   const std::vector<std::string>& values) {
  std::string options = "<option value=\"\">" + all + "</option>";
  for (const std::string& value : values) options += "<option>" + value + "</option>";
  return "<select name=\"" + name + "\" aria-label=\"" + name + "\">" + options + "</select>\n";
}

std::string form(const std::map<std::string, Found>& functions) {
  std::vector<std::string> transforms, lengths = {"any"};
  std::map<int, bool> numbers;
  for (const auto& [name, found] : functions) {
    if (std::find(transforms.begin(), transforms.end(), found.transform) == transforms.end()) {
      transforms.push_back(found.transform);
    }
    if (found.length != "any") numbers[std::stoi(found.length)] = true;
  }
  for (const auto& [number, is_there] : numbers) lengths.push_back(std::to_string(number));
  return "<form hidden=\"hidden\" class=\"finder\">\n<input name=\"words\" type=\"search\" "
         "placeholder=\"inverse pack 12\" aria-label=\"words\"/>\n" +
         choice("transform", "every transform", transforms) +
         choice("precision", "either precision", {"single", "double"}) +
         choice("length", "every length", lengths) + "<output id=\"count\"></output>\n</form>\n";
}

}  // namespace

std::string finder_page(const Catalogue& catalogue,
                        const std::map<std::string, std::string>& prototypes) {
  const std::map<std::string, Found> functions = found_functions(catalogue);
  // In order of length, as a reader counts.
  std::vector<std::string> names;
  for (const auto& [name, found] : functions) names.push_back(name);
  const auto number = [&](const std::string& name) {
    const std::string& length = functions.at(name).length;
    return length == "any" ? 0 : std::stoi(length);
  };
  std::stable_sort(names.begin(), names.end(), [&](const auto& a, const auto& b) {
    return std::pair(functions.at(a).transform, number(a)) <
           std::pair(functions.at(b).transform, number(b));
  });
  std::string rows;
  for (const std::string& name : names) {
    const auto prototype = prototypes.find(name);
    rows += row(catalogue, name, functions.at(name),
                prototype == prototypes.end() ? name : prototype->second);
  }
  return page("zulgen: find a function",
              "<h1>Find a function</h1>\n"
              "<p>Every exported function, by words such as “complex inverse 12”, “pack 64f” or "
              "“plan”. A name leads to the page of its length. The length is “any” where a call "
              "tells it. Counts, <a href=\"" +
                  std::string(kReadingPageName) + "#figures\">error and cycles</a> (" +
                  kArchitectures.front().levels.back() + ") are those of kernels.</p>\n" +
                  form(functions) + "<div id=\"functions\">" +
                  table("Functions",
                        table_head({"Function"}, {"Additions", "Multiplications", "Error, u",
                                                  "Cycles", "In the manual"}),
                        rows) +
                  "</div>\n" + kNotMeasuredNote,
              kFinderScriptName);
}

}  // namespace pages
