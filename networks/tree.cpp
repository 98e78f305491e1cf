#include "networks/tree.h"

#include <cctype>
#include <numeric>
#include <stdexcept>

namespace networks {
namespace {

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
    if (accept("CT(")) return split(Tree::Kind::kCooleyTukey);
    if (accept("PFA(")) return split(Tree::Kind::kPrimeFactor);
    int length = 0;
    while (!text_.empty() && std::isdigit(static_cast<unsigned char>(text_[0]))) {
      length = 10 * length + (text_[0] - '0');
      text_.remove_prefix(1);
    }
    if (length < 2) fail();
    return {Tree::Kind::kLeaf, length, {}};
  }

  Tree split(Tree::Kind kind) {
    Tree first = node();
    if (!accept(", ")) fail();
    Tree second = node();
    if (!accept(")")) fail();
    if (kind == Tree::Kind::kPrimeFactor && std::gcd(first.length, second.length) != 1) fail();
    const int length = first.length * second.length;
    return {kind, length, {std::move(first), std::move(second)}};
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
  if (tree.kind == Tree::Kind::kLeaf) return std::to_string(tree.length);
  const char* name = tree.kind == Tree::Kind::kCooleyTukey ? "CT(" : "PFA(";
  return name + to_string(tree.first()) + ", " + to_string(tree.second()) + ")";
}

}  // namespace networks
