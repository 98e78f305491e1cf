// The complex DFT of a decomposition tree.
//
// The algorithm says which samples meet; a `Form` says how samples sit in the values that
// arithmetic acts on, so that several blocks of one stage run side by side:
//
//   Form::Sample                      one complex sample, wherever it sits
//   Form::Packed                      up to Form::kWidth samples, one from each of several blocks;
//                                     a complex value type as in short_dft.h
//   pack(vector<Sample>) -> Packed
//   unpack(Packed, i) -> Sample
//   pack_of(Sample) -> int            the same for samples that lie in one Packed
//   place_in_pack(Sample) -> int      the i under which it was unpacked
//   zero() -> Sample
//   goes_in_lanes(Block) -> bool      whether leaf_in_lanes is to compute this block
//   leaf_in_lanes(Block) -> Block     a short transform whose values fill the packs by themselves
//   multiply(Packed, vector<ComplexNumber>, bool conjugate) -> Packed
//                                     sample i by constant i, or its conjugate, in full
//   twiddle(Packed, vector<Turn>, bool conjugate) -> Packed
//                                     sample i by exp(2 pi i * turn i), or its conjugate, by
//                                     quarter turns for nothing
//   choose() -> bool                  settles which of two arrangements to take; the arithmetic
//                                     that a sample sees is the same either way
//   begin_stage(name, description)    for readers of generated code
#pragma once

#include <algorithm>
#include <functional>
#include <map>
#include <set>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "networks/packs.h"
#include "networks/short_dft.h"
#include "networks/tree.h"
#include "networks/turn.h"

namespace networks {

// Which twiddle factors are carried out, and on which samples together.
enum class Twiddles {
  kNeeded,           // those that aren't 1, on whatever samples take the fewest products
  kNeededAsInverse,  // the same, by the inverse root's constants whichever the root is
  kAllRows,          // all of rows j2 >= 1, on samples that the second stage takes together
  kAllColumns,       // all of columns k1 >= 1, on samples that the first stage leaves together
};

template <class Form>
class ComplexDft {
 public:
  using Sample = typename Form::Sample;
  using Packed = typename Form::Packed;
  using Block = std::vector<Sample>;

  // Transforms the samples of some blocks, in natural order, with root exp(-2 pi i / length).
  using Leaf = std::function<std::vector<Packed>(const Tree&, const std::vector<Packed>&)>;

  // Leaves are short_dft.h's unless told otherwise.
  explicit ComplexDft(Form& form, Leaf leaf = nullptr, Twiddles twiddles = Twiddles::kNeeded)
      : form_(form), leaf_(std::move(leaf)), twiddles_(twiddles) {
    if (!leaf_) leaf_ = [](const Tree&, const std::vector<Packed>& x) { return short_dft(x); };
  }

  // The DFT of `input` with root exp(-2 pi i * exponent / length), exponent and length coprime:
  // 1 is the forward transform, -1 the inverse one. Names of stages begin with `stages`.
  Block run(const Tree& tree, const Block& input, int exponent, const std::string& stages = "") {
    stages_ = stages;
    return transform(tree, {input}, {{0}}, exponent)[0];
  }

 private:
  using Blocks = std::vector<Block>;
  // Blocks that run side by side, by their indices. They are packed together all the way through
  // their transforms, so that no sample has to move in between.
  using Group = std::vector<int>;
  using Groups = std::vector<Group>;

  // All blocks have the tree's length and the same root.
  Blocks transform(const Tree& tree, const Blocks& blocks, const Groups& groups, int exponent) {
    switch (tree.kind) {
      case Tree::Kind::kCooleyTukey:
        return cooley_tukey(tree, blocks, groups, exponent);
      case Tree::Kind::kPrimeFactor:
        return prime_factor(tree, blocks, groups, exponent);
      case Tree::Kind::kByData:
        return transform(tree.parts[1], blocks, groups, exponent);
      case Tree::Kind::kLeaf:
      case Tree::Kind::kMirrored:
        return leaves(tree, blocks, groups, exponent);
      default:
        throw std::invalid_argument("no complex transform: " + to_string(tree));
    }
  }

  // Input index b * j1 + j2, output index k1 + a * k2.
  Blocks cooley_tukey(const Tree& tree, const Blocks& blocks, const Groups& groups, int exponent) {
    const int a = tree.first().length, b = tree.second().length;
    Blocks columns =
        first_stage(tree, blocks, groups, exponent, [&](int j1, int j2) { return b * j1 + j2; });
    const Groups row_groups = rows_of(columns, groups, a, b);
    twiddle(columns, row_groups, a, b, exponent);
    return second_stage(tree, columns, row_groups, exponent,
                        [&](int k1, int k2) { return k1 + a * k2; });
  }

  // Index (b * i1 + a * i2) mod a * b on both sides.
  Blocks prime_factor(const Tree& tree, const Blocks& blocks, const Groups& groups, int exponent) {
    const int a = tree.first().length, b = tree.second().length;
    const auto index = [&](int i1, int i2) { return (b * i1 + a * i2) % (a * b); };
    const Blocks columns = first_stage(tree, blocks, groups, exponent * b, index);
    const Groups row_groups = rows_of(columns, groups, a, b);
    return second_stage(tree, columns, row_groups, exponent * a, index);
  }

  // Column j2 of block i is column j2 * blocks.size() + i of the result, of length a.
  template <class Index>
  Blocks first_stage(const Tree& tree, const Blocks& blocks, const Groups& groups, int exponent,
                     Index index) {
    const int a = tree.first().length, b = tree.second().length;
    Blocks columns;
    for (int j2 = 0; j2 < b; ++j2) {
      for (const Block& block : blocks) {
        Block& column = columns.emplace_back();
        for (int j1 = 0; j1 < a; ++j1) column.push_back(block[index(j1, j2)]);
      }
    }
    const Groups column_groups = part_groups(groups, b, static_cast<int>(blocks.size()));
    return transform(tree.first(), columns, column_groups, exponent);
  }

  // Row k1 of block i is block k1 * count + i of the second transform, of length b.
  template <class Index>
  Blocks second_stage(const Tree& tree, const Blocks& columns, const Groups& row_groups,
                      int exponent, Index index) {
    const int a = tree.first().length, b = tree.second().length;
    const int count = static_cast<int>(columns.size()) / b;
    Blocks rows(a * count);
    for (int row = 0; row < a * count; ++row) {
      for (int j2 = 0; j2 < b; ++j2) {
        rows[row].push_back(columns[j2 * count + row % count][row / count]);
      }
    }
    rows = transform(tree.second(), rows, row_groups, exponent);
    Blocks result(count, Block(a * b));
    for (int row = 0; row < a * count; ++row) {
      for (int k2 = 0; k2 < b; ++k2) result[row % count][index(row / count, k2)] = rows[row][k2];
    }
    return result;
  }

  // Groups for the `parts` columns or rows of each of `count` blocks, part p of block i having
  // index p * count + i. Full groups stay together; the parts of a block that has room beside it
  // are grouped with one another, and what doesn't fill a group is the first or the last part.
  Groups part_groups(const Groups& groups, int parts, int count) {
    Groups result;
    for (const Group& group : groups) {
      const int width = Form::kWidth / static_cast<int>(group.size());
      const int rest = parts % width;
      const bool rest_last = rest != 0 && form_.choose();
      int size = rest == 0 || rest_last ? width : rest;
      for (int part = 0; part < parts; size = width) {
        Group& joined = result.emplace_back();
        for (int end = std::min(part + size, parts); part < end; ++part) {
          for (int block : group) joined.push_back(part * count + block);
        }
      }
    }
    return result;
  }

  // The groups of the second stage's rows: those of its blocks, or rows that the first stage leaves
  // in one pack already.
  Groups rows_of(const Blocks& columns, const Groups& groups, int a, int b) {
    const Groups as_left = rows_as_left(columns, b);
    if (!as_left.empty() && form_.choose()) return as_left;
    return part_groups(groups, a, static_cast<int>(columns.size()) / b);
  }

  // Rows whose samples lie in one pack in every column; none if columns differ in that, or no pack
  // holds more than one sample of a column.
  Groups rows_as_left(const Blocks& columns, int b) {
    const int count = static_cast<int>(columns.size()) / b;
    Groups result;
    Group alone;
    for (int block = 0; block < count; ++block) {
      const Groups together = packed_together(form_, columns[block]);
      for (int j2 = 1; j2 < b; ++j2) {
        if (packed_together(form_, columns[j2 * count + block]) != together) return {};
      }
      for (const Group& group : together) {
        Group& rows = group.size() == 1 ? alone : result.emplace_back();
        for (int k1 : group) rows.push_back(k1 * count + block);
      }
    }
    if (result.empty()) return {};
    for (std::size_t i = 0; i < alone.size(); i += Form::kWidth) {
      const std::size_t end = std::min(i + Form::kWidth, alone.size());
      result.emplace_back(alone.begin() + i, alone.begin() + end);
    }
    return result;
  }

  // The short transforms.
  Blocks leaves(const Tree& tree, const Blocks& blocks, const Groups& groups, int exponent) {
    const int length = tree.length;
    last_stage_ = stages_ + static_cast<char>('a' + stage_count_++);
    form_.begin_stage(last_stage_, std::to_string(blocks.size()) +
                                       (blocks.size() == 1 ? " block" : " blocks") + " of " +
                                       std::to_string(length) + " points");
    // Another root only renames the outputs.
    const auto source = [&](int k) { return ((exponent * k) % length + length) % length; };
    Blocks result(blocks.size());
    if (std::all_of(blocks.begin(), blocks.end(),
                    [this](const Block& block) { return form_.goes_in_lanes(block); })) {
      for (std::size_t i = 0; i < blocks.size(); ++i) {
        const Block y = form_.leaf_in_lanes(blocks[i]);
        for (int k = 0; k < length; ++k) result[i].push_back(y[source(k)]);
      }
      return result;
    }
    for (const Group& group : groups) {
      std::vector<Packed> x;
      for (int j = 0; j < length; ++j) {
        std::vector<Sample> samples;
        for (int block : group) samples.push_back(blocks[block][j]);
        x.push_back(form_.pack(samples));
      }
      const std::vector<Packed> y = leaf_(tree, x);
      for (int k = 0; k < length; ++k) {
        for (std::size_t i = 0; i < group.size(); ++i) {
          result[group[i]].push_back(form_.unpack(y[source(k)], static_cast<int>(i)));
        }
      }
    }
    return result;
  }

  // One value of one column, and values that are multiplied together.
  struct Place {
    int column, k1;
  };
  using Pack = std::vector<Place>;

  // A[j2][k1] *= root^(j2 k1).
  void twiddle(Blocks& columns, const Groups& row_groups, int a, int b, int exponent) {
    const int count = static_cast<int>(columns.size()) / b;
    form_.begin_stage(last_stage_ + "w", "twiddle factors of length " + std::to_string(a * b));
    const bool conjugate = twiddles_ == Twiddles::kNeededAsInverse && exponent > 0;
    for (const Pack& pack : packs_to_multiply(columns, row_groups, b)) {
      std::vector<Turn> turns;
      std::vector<ComplexNumber> table;  // both directions use that of the positive exponent
      std::vector<Sample> samples;
      bool uniform = true;
      for (const auto& [column, k1] : pack) {
        const long turn = -static_cast<long>(exponent) * (column / count) * k1;
        turns.emplace_back(conjugate ? -turn : turn, a * b);
        table.push_back(Turn(exponent < 0 ? -turn : turn, a * b).root());
        samples.push_back(columns[column][k1]);
        uniform = uniform && turns.back() == turns.front();
      }
      const Packed packed = form_.pack(samples);
      const bool in_full = carries_out_all() && !uniform;
      const Packed product = in_full ? form_.multiply(packed, table, exponent < 0)
                                     : form_.twiddle(packed, turns, conjugate);
      for (std::size_t i = 0; i < pack.size(); ++i) {
        columns[pack[i].column][pack[i].k1] = form_.unpack(product, static_cast<int>(i));
      }
    }
  }

  bool carries_out_all() const {
    return twiddles_ == Twiddles::kAllRows || twiddles_ == Twiddles::kAllColumns;
  }

  std::vector<Pack> packs_to_multiply(const Blocks& columns, const Groups& row_groups, int b) {
    const int count = static_cast<int>(columns.size()) / b;
    std::vector<Pack> packs;
    switch (twiddles_) {
      case Twiddles::kNeeded:
      case Twiddles::kNeededAsInverse:
        return fewest_packs(columns, row_groups, b);
      case Twiddles::kAllRows:
        packs = packs_as_taken(row_groups, b, count);
        std::erase_if(packs, [&](const Pack& pack) { return pack.front().column < count; });
        return packs;
      case Twiddles::kAllColumns:
        packs = packs_as_left(columns);
        std::erase_if(packs, [&](const Pack& pack) { return pack.front().k1 == 0; });
        return packs;
    }
    return packs;
  }

  // Samples are multiplied together that the first stage leaves in one pack, or that the second
  // stage takes in one. The latter serve where the former mix samples that have a factor with
  // samples that have none, if they are fewer, or everywhere.
  std::vector<Pack> fewest_packs(const Blocks& columns, const Groups& row_groups, int b) {
    const int count = static_cast<int>(columns.size()) / b;
    const auto has_factor = [&](const Place& place) {
      return place.column >= count && place.k1 > 0;
    };
    const bool all_as_taken = form_.choose();
    std::vector<Pack> result, mixed;
    std::set<std::pair<int, int>> left;
    for (Pack& pack : packs_as_left(columns)) {
      const auto factors = std::count_if(pack.begin(), pack.end(), has_factor);
      if (factors == 0) continue;
      const bool full = factors == static_cast<long>(pack.size());
      if (full && !all_as_taken) {
        result.push_back(std::move(pack));
        continue;
      }
      for (const Place& place : pack) {
        if (has_factor(place)) left.insert({place.column, place.k1});
      }
      mixed.push_back(std::move(pack));
    }
    std::vector<Pack> taken;
    for (const Pack& row_pack : packs_as_taken(row_groups, b, count)) {
      Pack pack;
      bool wanted = false;
      for (const Place& place : row_pack) {
        const bool is_left = left.contains({place.column, place.k1});
        if (is_left || !has_factor(place)) pack.push_back(place);
        wanted = wanted || is_left;
      }
      if (wanted) taken.push_back(std::move(pack));
    }
    const auto& rest = all_as_taken || taken.size() < mixed.size() ? taken : mixed;
    result.insert(result.end(), rest.begin(), rest.end());
    return result;
  }

  std::vector<Pack> packs_as_left(const Blocks& columns) {
    std::vector<Pack> packs;
    std::map<int, std::size_t> known;
    for (int k1 = 0; k1 < static_cast<int>(columns[0].size()); ++k1) {
      for (int column = 0; column < static_cast<int>(columns.size()); ++column) {
        const int pack = form_.pack_of(columns[column][k1]);
        const auto [at, is_new] = known.try_emplace(pack, packs.size());
        // A sample of a block that is mostly zero may stand in several rows.
        if (is_new || packs[at->second].size() == Form::kWidth) {
          at->second = packs.size();
          packs.emplace_back();
        }
        packs[at->second].push_back({column, k1});
      }
    }
    return packs;
  }

  static std::vector<Pack> packs_as_taken(const Groups& row_groups, int b, int count) {
    std::vector<Pack> packs;
    for (int j2 = 0; j2 < b; ++j2) {
      for (const Group& group : row_groups) {
        Pack& pack = packs.emplace_back();
        for (int row : group) pack.push_back({j2 * count + row % count, row / count});
      }
    }
    return packs;
  }

  Form& form_;
  Leaf leaf_;
  Twiddles twiddles_;
  int stage_count_ = 0;
  std::string stages_, last_stage_;
};

}  // namespace networks
