// Writes the reference pages.
#include <fstream>
#include <iostream>
#include <sstream>
#include <stdexcept>

#include "docs/pages/prototypes.h"
#include "docs/pages/site.h"

namespace {

std::string read(const std::string& path) {
  std::ifstream in(path);
  std::ostringstream text;
  text << in.rdbuf();
  if (!in) throw std::runtime_error("can't read " + path);
  return text.str();
}

void write(const std::string& path, const std::string& text) {
  std::ofstream out(path);
  out << text;
  out.close();
  if (!out) throw std::runtime_error("can't write " + path);
}

std::vector<generate::Target> read_targets(const std::string& folder) {
  std::vector<generate::Target> targets;
  for (const pages::Architecture& architecture : pages::kArchitectures) {
    for (const std::string& level : architecture.levels) {
      targets.push_back(
          generate::read_target(folder + "/" + level, folder + "/" + architecture.levels.front()));
    }
  }
  return targets;
}

void run(const std::string& sources, const std::string& out) {
  const std::string docs = sources + "/docs";
  const pages::Catalogue catalogue = pages::make_catalogue(pages::read_figures(docs + "/measured"),
                                                           read_targets(sources + "/targets"));
  const std::string flow_style = read(docs + "/pages/flow.css");
  for (const auto& [length, entries] : catalogue.by_length) {
    const pages::Flow flow = pages::flow_of_length(catalogue, length, flow_style);
    write(out + "/" + pages::flow_picture_name(length), flow.picture.svg);
    write(out + "/" + pages::length_page_name(length), pages::length_page(catalogue, length, flow));
  }
  for (const pages::Architecture& architecture : pages::kArchitectures) {
    write(out + "/" + pages::speed_page_name(architecture),
          pages::speed_page(catalogue, architecture));
  }
  const auto prototypes = pages::prototypes_of(sources + "/include/zulgen");
  for (const auto& [name, text] :
       {std::pair(pages::kIndexPageName, pages::index_page(catalogue)),
        {pages::kOthersPageName, pages::others_page(catalogue)},
        {pages::kFinderPageName, pages::finder_page(catalogue, prototypes)},
        {pages::kReadingPageName, pages::reading_page(catalogue.figures)},
        {pages::kManualPageName, pages::manual_page(read(docs + "/manual.md"))},
        {pages::kFinderScriptName, read(docs + "/pages/" + pages::kFinderScriptName)},
        {"style.css", read(docs + "/pages/style.css")}}) {
    write(out + "/" + name, text);
  }
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) {
    std::cerr << "usage: zulgen-pages SOURCE_DIR OUT_DIR\n";
    return 2;
  }
  try {
    run(argv[1], argv[2]);
  } catch (const std::exception& error) {
    std::cerr << "zulgen-pages: " << error.what() << "\n";
    return 1;
  }
  return 0;
}
