// What AVX2 has for moving lanes, besides the moves of SSE.
#include <algorithm>

#include "gen/moves_128.h"

namespace gen {
namespace {

// `count` lanes from `first` on, taken side by side from one half of a vector.
struct Half {
  NodeId node = kNoNode;
  bool is_high = false;
};

std::optional<Half> half_of_a_vector(const Graph& graph, const Node& node, int first, int count) {
  const Lane& pick = node.picks[first];
  if (is_open(pick) || graph[pick.node].lane_count < count || pick.index % count != 0) {
    return std::nullopt;
  }
  for (int i = 1; i < count; ++i) {
    if (node.picks[first + i] != Lane{pick.node, pick.index + i}) return std::nullopt;
  }
  return Half{pick.node, pick.index != 0};
}

std::optional<Move> wide_load(const Graph& graph, const Node& node) {
  const int half = node.lane_count / 2;
  if (const auto element = memory_run(graph, node, 0, node.lane_count)) {
    return Move{"load", {}, {*element}, true, Port::kFree};
  }
  const std::string type = node.precision == Precision::kSingle ? "<F8>" : "<D4>";
  const auto low = memory_run(graph, node, 0, half), high = memory_run(graph, node, half, half);
  if (low && low == high) return Move{"load_twice" + type, {}, {*low}, false, Port::kFree};
  if (node.lane_count == 8) {
    // Quarters, each twice.
    std::vector<int> elements;
    for (const int first : {0, 4}) {
      const auto once = memory_run(graph, node, first, 2);
      if (!once || memory_run(graph, node, first + 2, 2) != once) return std::nullopt;
      elements.push_back(*once);
    }
    return Move{"load_each_twice", {}, elements, false, Port::kBlend};
  }
  return std::nullopt;
}

// Two halves of 128 bits.
std::optional<Move> wide_join(const Half& low, const Half& high) {
  const std::vector<NodeId> values = {low.node, high.node};
  if (!low.is_high && high.is_high) return Move{"join_halves", values, {}, false, Port::kBlend};
  if (!low.is_high) return Move{"insert_high", values, {}, false, Port::kCrossing};
  const std::string halves = high.is_high ? "<1, 3>" : "<1, 2>";
  return Move{"permute_halves" + halves, values, {}, false, Port::kCrossing};
}

// The same in both halves, or, of double precision, any lane of each half.
std::optional<Move> wide_shuffle(const Graph& graph, const Node& node) {
  const int width = node.lane_count, half = width / 2;
  std::array<NodeId, 2> sources = {kNoNode, kNoNode};
  std::string indices;
  for (int lane = 0; lane < width; ++lane) {
    const Lane& pick = node.picks[lane];
    if (is_open(pick) || graph[pick.node].lane_count != width) return std::nullopt;
    if (pick.index / half != lane / half) return std::nullopt;
    NodeId& source = sources[lane % half / (half / 2)];
    if (source != kNoNode && source != pick.node) return std::nullopt;
    source = pick.node;
    if (width == 4 || lane < half) {
      indices += (lane == 0 ? "" : ", ") + std::to_string(pick.index);
    } else if (pick.index - half != node.picks[lane - half].index) {
      return std::nullopt;
    }
  }
  if (sources[0] == sources[1]) return Move{"shuffle<" + indices + ">", {sources[0]}, {}};
  return Move{"shuffle<" + indices + ">", {sources[0], sources[1]}, {}};
}

// Lanes first, first + 1 of two vectors in turn, in each half.
std::optional<Move> wide_unpack(const Graph& graph, const Node& node) {
  if (node.lane_count != 8 || is_open(node.picks[0])) return std::nullopt;
  const int first = node.picks[0].index;
  if (first != 0 && first != 2) return std::nullopt;
  for (int lane = 0; lane < 8; ++lane) {
    const Lane wanted = {node.picks[lane % 2].node, lane / 4 * 4 + first + lane % 4 / 2};
    if (node.picks[lane] != wanted || graph[wanted.node].lane_count != 8) return std::nullopt;
  }
  return Move{
      first == 0 ? "unpack_low" : "unpack_high", {node.picks[0].node, node.picks[1].node}, {}};
}

class Avx2Moves : public SseMoves {
 public:
  std::optional<Move> single_move(const Graph& graph, NodeId lanes) const override {
    const Node& node = graph[lanes];
    const int width = node.lane_count;
    if (bits_of(node) == 256) {
      if (const auto load = wide_load(graph, node)) return load;
      const auto low = half_of_a_vector(graph, node, 0, width / 2);
      const auto high = half_of_a_vector(graph, node, width / 2, width / 2);
      if (low && high) return wide_join(*low, *high);
      if (const auto shuffle = wide_shuffle(graph, node)) return shuffle;
      return wide_unpack(graph, node);
    }
    if (bits_of(node) == 128) {
      const auto half = half_of_a_vector(graph, node, 0, width);
      if (half && graph[half->node].lane_count == 2 * width) {
        return Move{half->is_high ? "high_half" : "low_half",
                    {half->node},
                    {},
                    false,
                    half->is_high ? Port::kCrossing : Port::kFree};
      }
    }
    for (int lane = 0; lane < width; ++lane) {
      const Lane& pick = node.picks[lane];
      if (!is_open(pick) && bits_of(graph[pick.node]) == 256) return std::nullopt;
    }
    return SseMoves::single_move(graph, lanes);
  }

  const char* header() const override { return "frame/vector256.h"; }
  int vector_bits() const override { return 256; }
};

}  // namespace

const MoveSet& avx2_moves() {
  static const Avx2Moves moves;
  return moves;
}

}  // namespace gen
