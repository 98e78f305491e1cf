#include "generate/dispatch.h"

#include <map>
#include <sstream>
#include <stdexcept>

namespace generate {
namespace {

void replace_all(std::string& text, const std::string& word, const std::string& by) {
  for (std::size_t at = 0; (at = text.find(word, at)) != std::string::npos; at += by.size()) {
    text.replace(at, word.size(), by);
  }
}

// Replaces every "@WORD: part @" by what `make` makes of the part. A part consists of whole lines.
template <class Make>
void replace_parts(std::string& text, const std::string& word, Make make) {
  const std::string open = "@" + word + ":\n", close = "@\n";
  for (std::size_t at = 0; (at = text.find(open, at)) != std::string::npos;) {
    const std::size_t begin = at + open.size(), end = text.find("\n" + close, begin);
    if (end == std::string::npos) throw std::runtime_error("a part that doesn't end: @" + word);
    const std::string by = make(text.substr(begin, end + 1 - begin));
    text.replace(at, end + 1 + close.size() - at, by);
    at += by.size();
  }
}

}  // namespace

std::vector<DispatchEntry> dispatch_entries(const std::vector<gen::Kernel>& kernels) {
  std::vector<DispatchEntry> entries;
  std::map<std::string, std::size_t> index_of;
  for (const gen::Kernel& kernel : kernels) {
    const std::string name = entry_name_of(kernel);
    const auto [known, is_new] = index_of.try_emplace(name, entries.size());
    if (is_new) {
      entries.push_back({name, family_of(kernel), kernel.has_work_argument, kernel.number, {}});
    }
    DispatchEntry& entry = entries[known->second];
    if (kernel.number != entry.lowest + static_cast<int>(entry.kernels.size())) {
      throw std::runtime_error("there is a kernel missing before " + kernel.name);
    }
    entry.kernels.push_back(kernel.same_as.empty() ? kernel.name : kernel.same_as);
  }
  return entries;
}

std::string emit_dispatch(const DispatchEntry& entry, const std::string& pattern) {
  std::string text, line;
  for (std::istringstream lines(pattern); std::getline(lines, line);) {
    if (!line.starts_with('#')) text += line + "\n";
  }
  replace_parts(text, "OFFSETS", [&](const std::string& part) {
    std::string lines;
    for (const std::string& kernel : entry.kernels) {
      std::string line = part;
      replace_all(line, "@KERNEL@", gen::hidden_name(kernel));
      lines += line;
    }
    return lines;
  });
  replace_parts(text, "WORK",
                [&](const std::string& part) { return entry.has_work_argument ? part : ""; });
  replace_all(text, "@ENTRY@", entry.name);
  replace_all(text, "@TABLE@", gen::hidden_name(entry.name) + "_kernels");
  replace_all(text, "@LOWEST@", std::to_string(entry.lowest));
  replace_all(text, "@LAST@", std::to_string(entry.kernels.size() - 1));
  return text;
}

}  // namespace generate
