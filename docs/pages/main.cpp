// Writes the reference pages.
#include <fstream>
#include <iostream>
#include <sstream>
#include <stdexcept>

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

void run(const std::string& docs, const std::string& out) {
  const pages::Catalogue catalogue = pages::make_catalogue(pages::read_figures(docs + "/measured"));
  const std::string flow_style = read(docs + "/pages/flow.css");
  for (const auto& [length, entries] : catalogue.by_length) {
    const pages::Picture flow = pages::flow_of_length(catalogue, length, flow_style);
    write(out + "/" + pages::flow_picture_name(length), flow.svg);
    write(out + "/" + pages::length_page_name(length), pages::length_page(catalogue, length, flow));
  }
  const std::string others = pages::others_page(catalogue);
  if (!others.empty()) write(out + "/" + pages::kOthersPageName, others);
  write(out + "/style.css", read(docs + "/pages/style.css"));
  write(out + "/index.html", pages::index_page(catalogue));
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) {
    std::cerr << "usage: zulgen-pages DOCS_DIR OUT_DIR\n";
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
