#include "docs/pages/decomposition.h"

#include "dft_complex/dft_complex.h"
#include "dft_real/dft_real.h"
#include "hartley/hartley.h"
#include "networks/tree.h"

namespace pages {
namespace {

using networks::RaderTable;
using networks::Tree;

std::string joined(const std::string& role, const std::string& note) {
  return role + (role.empty() || note.empty() ? "" : ", ") + note;
}

// What the letters behind a leaf's length say, as far as it is no recipe of Rader's form.
std::string form_of_leaf(const Tree& leaf) {
  if (leaf.form == "w") return "short form";
  if (leaf.form == "s") return "radix-2 steps";
  if (leaf.form == "n") return "by definition";
  return "";
}

class Reader {
 public:
  explicit Reader(const RaderTable& table) : table_(table) {}

  Branch read(const Tree& tree, const std::string& role = "") const {
    const auto branch = [&](const char* note, std::vector<const char*> roles) {
      Branch result = {tree.length, joined(role, note), {}};
      for (std::size_t i = 0; i < tree.parts.size(); ++i) {
        result.parts.push_back(read(tree.parts[i], i < roles.size() ? roles[i] : ""));
      }
      return result;
    };
    switch (tree.kind) {
      case Tree::Kind::kCooleyTukey:
        return branch("Cooley-Tukey", {});
      case Tree::Kind::kPrimeFactor:
        return branch("prime factor", {});
      case Tree::Kind::kAlternating:
        return branch("alternating signs", {});
      case Tree::Kind::kFolded:
      case Tree::Kind::kFoldedComplex:
        return branch("folded to complex", {});
      case Tree::Kind::kSplit:
        return branch("halves split", {"sums", "differences"});
      case Tree::Kind::kByData:
        return branch("by kind of data", {"real", "complex", "between bins"});
      case Tree::Kind::kMirrored:
        return branch("mirror image", {});
      case Tree::Kind::kProductsFolded:
        return branch("products folded", {});
      case Tree::Kind::kRader:
        return branch("Rader", {"forward", "inverse"});
      case Tree::Kind::kChirp:
        return branch("chirp", {"forward and back"});
      case Tree::Kind::kLeaf:
        return leaf(tree, role);
    }
    return {};
  }

 private:
  Branch leaf(const Tree& tree, const std::string& role) const {
    const networks::RaderRecipe* recipe = table_.find(tree);
    if (recipe == nullptr) return {tree.length, joined(role, form_of_leaf(tree)), {}};
    return {tree.length,
            joined(role, "Rader"),
            {read(recipe->input, "input"), read(recipe->even, "even half"),
             read(recipe->odd, "odd half")}};
  }

  const RaderTable& table_;
};

Branch hartley_branch(int length) {
  const bool behind = hartley::kRows.at(length - 2).form == hartley::Form::kOutputButterflies;
  const dft_real::Row& core = dft_real::row_of(length);
  const Reader reader(dft_real::rader());
  Branch branch = {length, behind ? "butterflies last" : "butterflies first", {}};
  branch.parts.push_back(reader.read(networks::parse_tree(behind ? core.forward : core.inverse),
                                     behind ? "forward core" : "inverse core"));
  return branch;
}

}  // namespace

Branch decomposition(Transform transform, const gen::Kernel& kernel) {
  if (transform == Transform::kHartley) return hartley_branch(kernel.length());
  const bool real = transform == Transform::kRealForward || transform == Transform::kRealInverse;
  const bool single = kernel.precision == gen::Precision::kSingle;
  const RaderTable& table = real     ? dft_real::rader()
                            : single ? dft_complex::rader_32fc()
                                     : dft_complex::rader_64fc();
  Branch branch = Reader(table).read(networks::parse_tree(kernel.recipe));
  // The tree of a chirp doesn't tell the length of the transform.
  branch.length = kernel.length();
  return branch;
}

}  // namespace pages
