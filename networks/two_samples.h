// The form of the four-lane kernels: two complex samples a vector, (re, im, re, im).
#pragma once

#include <string>
#include <vector>

#include "gen/expr.h"
#include "networks/turn.h"

namespace networks {

// A complex value type for the networks: one or two samples that take part in the same operations.
struct SamplePair {
  gen::Expr v;

  SamplePair operator-() const { return {-v}; }
  friend SamplePair operator+(const SamplePair& a, const SamplePair& b) { return {a.v + b.v}; }
  friend SamplePair operator-(const SamplePair& a, const SamplePair& b) { return {a.v - b.v}; }
  friend SamplePair operator*(const Number& factor, const SamplePair& a) { return {factor * a.v}; }
};

SamplePair minus_i(const SamplePair& z);

class TwoSamples {
 public:
  // One sample: the lanes that its parts are in.
  struct Sample {
    gen::Lane re, im;
    bool negative = false;
  };
  using Packed = SamplePair;
  static constexpr int kWidth = 2;

  // Bit i of `plan` is the answer to choice i.
  TwoSamples(gen::Graph& graph, unsigned plan) : graph_(graph), plan_(plan) {}

  Sample input(int n);
  // Scales the sample and makes it sample k of the destination.
  void output(int k, const Sample& sample);

  Packed pack(const std::vector<Sample>& samples);
  Sample unpack(const Packed& packed, int i);
  int pack_of(const Sample& sample) { return sample.re.node; }
  Packed twiddle(const Packed& z, const std::vector<Turn>& turns);
  bool choose() { return plan_ >> choices_++ & 1; }
  void begin_stage(const std::string& name, const std::string& description) {
    graph_.begin_stage({name, description});
  }

  int choices() const { return choices_; }

 private:
  gen::Graph& graph_;
  unsigned plan_;
  int choices_ = 0;
};

}  // namespace networks
