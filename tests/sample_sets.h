// Which samples the values of a data flow depend on, or feed: it shows in which order the factors
// of a length are applied.
#pragma once

#include <array>
#include <cstdint>
#include <set>
#include <vector>

#include "gen/graph.h"

using SampleSet = std::uint64_t;
using SampleSets = std::set<SampleSet>;

// The sets of samples, of so many elements each, that the lanes of all values depend on or feed.
inline SampleSets sample_sets(const gen::Graph& graph, bool fed, int elements) {
  std::vector<std::array<SampleSet, gen::kMaxLanes>> sets(graph.size());
  const std::vector<bool> live = graph.live_nodes();
  const auto join = [&](gen::NodeId id, int lane, gen::NodeId operand, int from) {
    (fed ? sets[operand][from] : sets[id][lane]) |= fed ? sets[id][lane] : sets[operand][from];
  };
  for (const gen::Output& out : graph.outputs()) {
    if (fed) sets[out.from.node][out.from.index] |= SampleSet{1} << out.element / elements;
  }
  for (gen::NodeId at = 0; at < graph.size(); ++at) {
    const gen::NodeId id = fed ? graph.size() - 1 - at : at;
    const gen::Node& node = graph[id];
    if (!live[id]) continue;
    if (node.op == gen::Op::kInput && !fed) {
      sets[id][0] = SampleSet{1} << node.element / elements;
    }
    for (int lane = 0; lane < node.lane_count; ++lane) {
      const gen::Lane pick = node.op == gen::Op::kLanes ? node.picks[lane] : gen::Lane();
      if (pick.node != gen::kNoNode) join(id, lane, pick.node, pick.index);
      if (node.op == gen::Op::kLanes) continue;
      for (const gen::NodeId operand : graph.operands(id)) join(id, lane, operand, lane);
    }
  }
  SampleSets result;
  for (const auto& lanes : sets) result.insert(lanes.begin(), lanes.end());
  return result;
}

// The proper divisors b of the number of places for which the samples at every coset of b places
// together are among the sets.
inline std::set<int> complete_cosets(const std::vector<SampleSet>& places, const SampleSets& sets) {
  const int n = static_cast<int>(places.size());
  std::set<int> blocks;
  for (int size = 2; size < n; ++size) {
    bool complete = n % size == 0;
    for (int first = 0; complete && first < n / size; ++first) {
      SampleSet coset = 0;
      for (int i = first; i < n; i += n / size) coset |= places[i];
      complete = sets.contains(coset);
    }
    if (complete) blocks.insert(size);
  }
  return blocks;
}

inline std::vector<SampleSet> single_places(int n) {
  std::vector<SampleSet> places;
  for (int i = 0; i < n; ++i) places.push_back(SampleSet{1} << i);
  return places;
}

// The powers of the smallest primitive root of a prime.
inline std::vector<int> powers(int prime) {
  for (int g = 2;; ++g) {
    std::vector<int> result = {1};
    while (result.back() * g % prime != 1) result.push_back(result.back() * g % prime);
    if (static_cast<int>(result.size()) == prime - 1) return result;
  }
}

// The places behind the first in the order of these powers.
inline std::vector<SampleSet> permuted(const std::vector<SampleSet>& places) {
  std::vector<SampleSet> result;
  for (const int power : powers(static_cast<int>(places.size()))) result.push_back(places[power]);
  return result;
}
