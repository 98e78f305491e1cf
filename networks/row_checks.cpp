#include "networks/row_checks.h"

namespace networks {
namespace {

void check(const RowPlace& place, const Tree& tree, const RaderTable& leaves) {
  if (tree.kind == Tree::Kind::kLeaf && !leaves.knows(tree)) {
    place.fail("no form of " + to_string(tree));
  }
  if (tree.kind == Tree::Kind::kRader && !is_prime(tree.length)) {
    place.fail(to_string(tree) + " is not of prime length");
  }
  for (const Tree& part : tree.parts) check(place, part, leaves);
}

}  // namespace

Tree tree_of_row(const RowPlace& place, const std::string& text, const RaderTable& leaves) {
  Tree tree;
  try {
    tree = parse_tree(text);
  } catch (const std::invalid_argument& error) {
    place.fail(error.what());
  }
  check(place, tree, leaves);
  if (tree.kind == Tree::Kind::kChirp) {
    if (tree.length < 2 * place.length - 1) place.fail(text + " is too short for a chirp");
  } else if (tree.length != place.length) {
    place.fail(text + " has length " + std::to_string(tree.length));
  }
  return tree;
}

}  // namespace networks
