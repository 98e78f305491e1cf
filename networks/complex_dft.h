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
//   goes_in_lanes(Block) -> bool      whether leaf_in_lanes is to compute this block
//   leaf_in_lanes(Block) -> Block     a short transform whose values fill the packs by themselves
//   twiddle(Packed, vector<Turn>) -> Packed
//                                     sample i multiplied by exp(2 pi i * turn i)
//   choose() -> bool                  settles which of two arrangements to take; the arithmetic
//                                     that a sample sees is the same either way
//   begin_stage(name, description)    for readers of generated code
#pragma once

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "networks/short_dft.h"
#include "networks/tree.h"
#include "networks/turn.h"

namespace networks {

template <class Form>
class ComplexDft {
 public:
  using Sample = typename Form::Sample;
  using Packed = typename Form::Packed;
  using Block = std::vector<Sample>;

  explicit ComplexDft(Form& form) : form_(form) {}

  // The DFT of `input` with root exp(-2 pi i * exponent / length), exponent and length coprime:
  // 1 is the forward transform, -1 the inverse one.
  Block run(const Tree& tree, const Block& input, int exponent) {
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
      case Tree::Kind::kLeaf:
        break;
    }
    return leaves(tree.length, blocks, groups, exponent);
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
      const Groups together = packed_together(columns[block]);
      for (int j2 = 1; j2 < b; ++j2) {
        if (packed_together(columns[j2 * count + block]) != together) return {};
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

  // The indices of samples that lie in one pack, in the order of their places there.
  Groups packed_together(const Block& samples) {
    std::map<int, std::map<int, int>> packs;
    for (int k = 0; k < static_cast<int>(samples.size()); ++k) {
      packs[form_.pack_of(samples[k])][form_.place_in_pack(samples[k])] = k;
    }
    Groups result;
    for (const auto& [pack, places] : packs) {
      Group& group = result.emplace_back();
      for (const auto& [place, k] : places) group.push_back(k);
    }
    std::sort(result.begin(), result.end());
    return result;
  }

  // The short transforms.
  Blocks leaves(int length, const Blocks& blocks, const Groups& groups, int exponent) {
    last_stage_ = std::string(1, static_cast<char>('a' + stage_count_++));
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
      const std::vector<Packed> y = short_dft(x);
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
    for (const Pack& pack : twiddle_packs(columns, row_groups, b)) {
      std::vector<Turn> turns;
      std::vector<Sample> samples;
      for (const auto& [column, k1] : pack) {
        turns.emplace_back(-static_cast<long>(exponent) * (column / count) * k1, a * b);
        samples.push_back(columns[column][k1]);
      }
      const Packed product = form_.twiddle(form_.pack(samples), turns);
      for (std::size_t i = 0; i < pack.size(); ++i) {
        columns[pack[i].column][pack[i].k1] = form_.unpack(product, static_cast<int>(i));
      }
    }
  }

  // Samples are multiplied together that the first stage leaves in one pack, or that the second
  // stage takes in one. The latter serve where the former mix samples that have a factor with
  // samples that have none, if they are fewer, or everywhere.
  std::vector<Pack> twiddle_packs(const Blocks& columns, const Groups& row_groups, int b) {
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
        if (is_new) packs.emplace_back();
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
  int stage_count_ = 0;
  std::string last_stage_;
};

}  // namespace networks
