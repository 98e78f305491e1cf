#include "networks/two_samples.h"

namespace networks {
namespace {

// (im, re) of every sample.
SamplePair swapped(const SamplePair& z) {
  const gen::NodeId node = z.v.value.node;
  const gen::Value value = z.v.graph->lanes({{node, 1}, {node, 0}, {node, 3}, {node, 2}});
  return {{z.v.graph, z.v.value.negative ? -value : value}};
}

}  // namespace

SamplePair minus_i(const SamplePair& z) {
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
  std::vector<gen::Lane> lanes;
  unsigned flips = 0;
  for (const Sample& sample : samples) {
    if (sample.negative) flips |= 0b11u << lanes.size();
    lanes.insert(lanes.end(), {sample.re, sample.im});
  }
  if (samples.size() == 1 && flips != 0) flips = 0b1111;
  lanes.resize(gen::kMaxLanes);
  return {{&graph_, graph_.flip_signs(graph_.lanes(lanes), flips)}};
}

TwoSamples::Sample TwoSamples::unpack(const Packed& packed, int i) {
  const gen::Value& value = packed.v.value;
  return {{value.node, 2 * i}, {value.node, 2 * i + 1}, value.negative};
}

TwoSamples::Packed TwoSamples::twiddle(const Packed& z, const std::vector<Turn>& turns) {
  const Turn& first = turns.front();
  const Turn& last = turns.back();
  // One factor for both samples rotates the vector as a whole.
  if (first == last) return rotate(z, first);
  if (first.is_quarter() && last.is_quarter()) {
    return pack({unpack(rotate(z, first), 0), unpack(rotate(z, last), 1)});
  }
  // Otherwise every lane is multiplied, also by 1 or 0: re * wr - im * wi, im * wr + re * wi, with
  // the constants' own signs.
  const ComplexNumber w0 = first.root(), w1 = last.root();
  const gen::Value straight = graph_.mul({w0.re, w0.re, w1.re, w1.re}, z.v.value);
  const gen::Value crossed = graph_.mul({w0.im, w0.im, w1.im, w1.im}, swapped(z).v.value);
  return {{&graph_, graph_.add(straight, graph_.flip_signs(crossed, 0b0101))}};
}

}  // namespace networks
