#include "networks/two_samples.h"

#include <algorithm>
#include <array>

namespace networks {
namespace {

constexpr int kLaneCount = 4;  // two samples

// (im, re) of every sample.
SamplePair swapped(const SamplePair& z) {
  const gen::NodeId node = z.v.value.node;
  std::vector<gen::Lane> lanes;
  for (int lane = 0; lane < (*z.v.graph)[node].lane_count; ++lane)
    lanes.push_back({node, lane ^ 1});
  const gen::Value value = z.v.graph->lanes(lanes);
  return {{z.v.graph, z.v.value.negative ? -value : value}};
}

}  // namespace

SamplePair minus_i(const SamplePair& z) {
  if (z.is_zero()) return z;
  const SamplePair s = swapped(z);
  return {{s.v.graph, s.v.graph->flip_signs(s.v.value, 0b1010)}};
}

TwoSamples::Sample TwoSamples::input(int n) {
  return {{graph_.input(2 * n).node, 0}, {graph_.input(2 * n + 1).node, 0}};
}

void TwoSamples::output(int k, const Sample& sample) {
  const gen::Value scaled = graph_.scale({sample.re.node, sample.negative});
  graph_.output(2 * k, scaled, sample.re.index);
  graph_.output(2 * k + 1, scaled, sample.im.index);
}

TwoSamples::Packed TwoSamples::pack(const std::vector<Sample>& samples) {
  if (std::all_of(samples.begin(), samples.end(), [](const Sample& s) { return s.is_zero(); })) {
    return {};
  }
  std::vector<gen::Lane> lanes;
  unsigned flips = 0;
  for (const Sample& sample : samples) {
    if (sample.negative) flips |= 0b11u << lanes.size();
    if (sample.is_zero()) {
      const gen::NodeId zero = graph_.zero(graph_.sample_precision(), kLaneCount).node;
      lanes.insert(lanes.end(), {{zero, 0}, {zero, 1}});
    } else {
      lanes.insert(lanes.end(), {sample.re, sample.im});
    }
  }
  if (samples.size() == 1 && flips != 0) flips = 0b1111;
  lanes.resize(kLaneCount);
  return {{&graph_, graph_.flip_signs(graph_.lanes(lanes), flips)}};
}

TwoSamples::Sample TwoSamples::unpack(const Packed& packed, int i) {
  if (packed.is_zero()) return {};
  const gen::Value& value = packed.v.value;
  return {{value.node, 2 * i}, {value.node, 2 * i + 1}, value.negative};
}

bool TwoSamples::goes_in_lanes(const std::vector<Sample>& block) const {
  if (leaves_ == Leaves::kSideBySide || block.size() > 5) return false;
  const auto from_memory = [this](const Sample& sample) {
    return graph_[sample.re.node].op == gen::Op::kInput;
  };
  return std::all_of(block.begin(), block.end(), from_memory);
}

std::vector<TwoSamples::Sample> TwoSamples::leaf_in_lanes(const std::vector<Sample>& block) {
  std::vector<gen::Expr> x;
  for (const Sample& sample : block) x.push_back(pack({sample, sample}).v);
  const auto flip = [this](const gen::Expr& a, unsigned flips) {
    return gen::Expr{&graph_, graph_.flip_signs(a.value, flips)};
  };
  const auto pick = [this](const gen::Expr& a, const std::array<int, 4>& lanes) {
    const gen::NodeId node = a.value.node;
    return gen::Expr{
        &graph_,
        graph_.lanes({{node, lanes[0]}, {node, lanes[1]}, {node, lanes[2]}, {node, lanes[3]}})};
  };
  const auto times = [this](const gen::Expr& a, const gen::Factors& factors) {
    return gen::Expr{&graph_, graph_.mul(factors, a.value)};
  };
  constexpr unsigned kUpper = 0b1100;
  if (block.size() == 2) {
    const SamplePair y = {x[0] + flip(x[1], kUpper)};
    return {unpack(y, 0), unpack(y, 1)};
  }
  if (block.size() == 3) {
    const gen::Expr sum = x[1] + x[2], mean = x[0] - gen::ratio(1, 2) * sum;
    const gen::Expr product = gen::sin_of_turn(1, 3) * pick(x[1] - x[2], {1, 0, 3, 2});
    const SamplePair y0 = {x[0] + sum}, y12 = {mean + flip(product, 0b0110)};
    return {unpack(y0, 0), unpack(y12, 0), unpack(y12, 1)};
  }
  if (block.size() == 4) {
    const gen::Expr ab = x[0] + flip(x[2], kUpper), cd = x[1] + flip(x[3], kUpper);
    const gen::Expr turned = flip(pick(cd, {0, 1, 3, 2}), 0b1000);
    const SamplePair y01 = {ab + turned}, y23 = {ab - turned};
    return {unpack(y01, 0), unpack(y01, 1), unpack(y23, 0), unpack(y23, 1)};
  }
  const Number c1 = gen::cos_of_turn(1, 5), c2 = -gen::cos_of_turn(2, 5);
  const Number s1 = gen::sin_of_turn(1, 5), s2 = gen::sin_of_turn(2, 5);
  const gen::Expr a = x[1] + x[4], b = x[3] + x[2], f = x[1] - x[4], e = x[3] - x[2];
  const gen::Expr p = (times(a, {c1, c1, -c2, -c2}) + x[0]) + times(b, {-c2, -c2, c1, c1});
  // i r, so that swapping the parts alone makes it r.
  const gen::Expr ir = times(f, {-s1, s1, -s2, s2}) + times(e, {s2, -s2, -s1, s1});
  const gen::Expr r = pick(ir, {1, 0, 3, 2});
  const SamplePair y0 = {(x[0] + a) + b}, y12 = {p + r}, y43 = {p - r};
  return {unpack(y0, 0), unpack(y12, 0), unpack(y12, 1), unpack(y43, 1), unpack(y43, 0)};
}

TwoSamples::Packed TwoSamples::twiddle(const Packed& z, const std::vector<Turn>& turns,
                                       bool conjugate) {
  if (z.is_zero()) return z;
  const Turn& first = turns.front();
  const Turn& last = turns.back();
  const auto rotated = [&](const Turn& turn) { return rotate(z, conjugate ? -turn : turn); };
  // One factor for both samples rotates the vector as a whole.
  if (first == last) return rotated(first);
  if (first.is_quarter() && last.is_quarter()) {
    return pack({unpack(rotated(first), 0), unpack(rotated(last), 1)});
  }
  return multiply(z, {first.root(), last.root()}, conjugate);
}

// Every lane is multiplied, also by 1 or 0: re * wr - im * wi, im * wr + re * wi, with the
// constants' own signs. For the conjugates, sum and difference change places.
TwoSamples::Packed TwoSamples::multiply(const Packed& z,
                                        const std::vector<ComplexNumber>& constants,
                                        bool conjugate) {
  if (z.is_zero()) return z;
  const ComplexNumber &w0 = constants.front(), &w1 = constants.back();
  const gen::Value straight = graph_.mul({w0.re, w0.re, w1.re, w1.re}, z.v.value);
  const gen::Value crossed = graph_.mul({w0.im, w0.im, w1.im, w1.im}, swapped(z).v.value);
  const unsigned flips = conjugate ? 0b1010 : 0b0101;
  return {{&graph_, graph_.add(straight, graph_.flip_signs(crossed, flips))}};
}

}  // namespace networks
