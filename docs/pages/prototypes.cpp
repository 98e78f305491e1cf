#include "docs/pages/prototypes.h"

#include <filesystem>
#include <fstream>
#include <regex>
#include <sstream>
#include <stdexcept>

namespace pages {
namespace {

std::string replaced(const std::string& text, const char* pattern, const std::string& by) {
  return std::regex_replace(text, std::regex(pattern), by);
}

void erase_comments(std::string& text) {
  for (std::size_t begin; (begin = text.find("/*")) != std::string::npos;) {
    text.erase(begin, text.find("*/", begin) + 2 - begin);
  }
}

}  // namespace

std::map<std::string, std::string> prototypes_in(std::string header) {
  erase_comments(header);
  header = replaced(header, "\\\\\n", " ");
  static const std::regex macro("#define (\\w+)\\((\\w+), (\\w+)\\)([^\n]*)");
  static const std::regex use("(?:^|\n)(\\w+)\\((\\w+), (\\w+)\\);");
  static const std::regex function("(?:^|\n)((?:const )?\\w+\\*? (zul\\w+)\\([^;{}]*\\));");
  std::map<std::string, std::smatch> macros;
  for (std::sregex_iterator at(header.begin(), header.end(), macro), end; at != end; ++at) {
    macros[(*at)[1]] = *at;
  }
  std::map<std::string, std::string> result;
  // The line end before a match may be the one behind the match before: it is left there.
  for (std::sregex_iterator at(header.begin(), header.end(), use), end; at != end; ++at) {
    const auto found = macros.find((*at)[1]);
    if (found == macros.end()) continue;
    const std::smatch& body = found->second;
    std::string text = body[4];
    text = replaced(text, ("\\b" + body[2].str() + "\\b").c_str(), (*at)[2]);
    text = replaced(text, ("\\b" + body[3].str() + "\\b").c_str(), (*at)[3]);
    result[(*at)[2]] = replaced(replaced(text, "\\s+", " "), "^ | $", "");
  }
  for (std::sregex_iterator at(header.begin(), header.end(), function), end; at != end; ++at) {
    result[(*at)[2]] = replaced((*at)[1], "\\s+", " ");
  }
  return result;
}

std::map<std::string, std::string> prototypes_of(const std::string& folder) {
  std::map<std::string, std::string> result;
  for (const auto& file : std::filesystem::directory_iterator(folder)) {
    std::ifstream in(file.path());
    std::ostringstream text;
    text << in.rdbuf();
    if (!in) throw std::runtime_error("can't read " + file.path().string());
    result.merge(prototypes_in(text.str()));
  }
  return result;
}

}  // namespace pages
