#include "networks/tree.h"

#include <algorithm>
#include <cctype>
#include <iterator>
#include <numeric>
#include <stdexcept>

namespace networks {
namespace {

struct Notation {
  Tree::Kind kind;
  std::string_view name;
  int part_count;
};

constexpr Notation kNotations[] = {
    {Tree::Kind::kCooleyTukey, "CT", 2},      {Tree::Kind::kPrimeFactor, "PFA", 2},
    {Tree::Kind::kAlternating, "alt", 1},     {Tree::Kind::kFolded, "Z", 1},
    {Tree::Kind::kFoldedComplex, "Zc", 1},    {Tree::Kind::kSplit, "split", 2},
    {Tree::Kind::kByData, "by", 3},           {Tree::Kind::kMirrored, "mirror", 1},
    {Tree::Kind::kProductsFolded, "fold", 1}, {Tree::Kind::kRader, "Rader", 2},
    {Tree::Kind::kChirp, "chirp", 1},
};

int length_of(Tree::Kind kind, const std::vector<Tree>& parts) {
  switch (kind) {
    case Tree::Kind::kAlternating:
    case Tree::Kind::kByData:
    case Tree::Kind::kMirrored:
    case Tree::Kind::kProductsFolded:
    case Tree::Kind::kChirp:
      return parts[0].length;
    case Tree::Kind::kRader:
      return parts[0].length + 1;
    case Tree::Kind::kFolded:
    case Tree::Kind::kFoldedComplex:
    case Tree::Kind::kSplit:
      return 2 * parts[0].length;
    default:
      return parts[0].length * parts[1].length;
  }
}

class Parser {
 public:
  explicit Parser(std::string_view text) : text_(text) {}

  Tree whole() {
    Tree tree = node();
    if (!text_.empty()) fail();
    return tree;
  }

 private:
  Tree node() {
    for (const Notation& notation : kNotations) {
      if (!accept(std::string(notation.name) + "(")) continue;
      Tree tree;
      tree.kind = notation.kind;
      for (int part = 0; part < notation.part_count; ++part) {
        if (part > 0 && !accept(", ")) fail();
        tree.parts.push_back(node());
      }
      if (!accept(")")) fail();
      tree.length = length_of(tree.kind, tree.parts);
      const bool coprime = std::gcd(tree.parts[0].length, tree.parts.back().length) == 1;
      if (tree.kind == Tree::Kind::kPrimeFactor && !coprime) fail();
      const bool takes_equal = tree.kind == Tree::Kind::kSplit || tree.kind == Tree::Kind::kRader ||
                               tree.kind == Tree::Kind::kByData;
      for (const Tree& part : tree.parts) {
        if (takes_equal && part.length != tree.parts[0].length) fail();
      }
      return tree;
    }
    Tree leaf;
    leaf.length = 0;
    for (char digit : take([](unsigned char c) { return std::isdigit(c); })) {
      leaf.length = 10 * leaf.length + (digit - '0');
    }
    if (leaf.length < 2) fail();
    leaf.form = take([](unsigned char c) { return std::islower(c); });
    return leaf;
  }

  template <class Class>
  std::string take(Class is_in_class) {
    const auto end = std::find_if_not(text_.begin(), text_.end(), is_in_class);
    const std::string taken(text_.begin(), end);
    text_.remove_prefix(taken.size());
    return taken;
  }

  bool accept(std::string_view token) {
    if (!text_.starts_with(token)) return false;
    text_.remove_prefix(token.size());
    return true;
  }

  [[noreturn]] void fail() const {
    throw std::invalid_argument("not a decomposition at \"" + std::string(text_) + "\"");
  }

  std::string_view text_;
};

}  // namespace

Tree parse_tree(std::string_view text) { return Parser(text).whole(); }

std::string to_string(const Tree& tree) {
  if (tree.kind == Tree::Kind::kLeaf) return std::to_string(tree.length) + tree.form;
  const auto notation =
      std::find_if(std::begin(kNotations), std::end(kNotations),
                   [&](const Notation& candidate) { return candidate.kind == tree.kind; });
  std::string text(notation->name);
  for (std::size_t part = 0; part < tree.parts.size(); ++part) {
    text += (part == 0 ? "(" : ", ") + to_string(tree.parts[part]);
  }
  return text + ")";
}

}  // namespace networks
