// The form of the four-lane kernels: two complex samples a vector, (re, im, re, im).
#pragma once

#include <string>
#include <vector>

#include "gen/expr.h"
#include "networks/turn.h"

namespace networks {

// A complex value type for the networks: one or two samples, (re, im) of each in neighbouring
// lanes, that take part in the same operations. Without a graph it stands for zero, and adding or
// multiplying it is no operation.
struct SamplePair {
  gen::Expr v;

  bool is_zero() const { return v.graph == nullptr; }
  SamplePair operator-() const { return is_zero() ? *this : SamplePair{-v}; }
  friend SamplePair operator+(const SamplePair& a, const SamplePair& b) {
    if (a.is_zero()) return b;
    return b.is_zero() ? a : SamplePair{a.v + b.v};
  }
  friend SamplePair operator-(const SamplePair& a, const SamplePair& b) { return a + -b; }
  friend SamplePair operator*(const Number& factor, const SamplePair& a) {
    return a.is_zero() ? a : SamplePair{factor * a.v};
  }
};

SamplePair minus_i(const SamplePair& z);

// How the blocks of the first stage, which come from memory, sit in vectors.
enum class Leaves {
  // Two blocks side by side, as everywhere else.
  kSideBySide,
  // One block of 2 to 5 samples in both halves. A sample is loaded into both at the price of a
  // load,
  // and the halves go different ways, so that the block's values fill the vectors by themselves.
  kInLanes,
};

class TwoSamples {
 public:
  // One sample: the lanes that its parts are in; without lanes it is zero.
  struct Sample {
    gen::Lane re, im;
    bool negative = false;
    bool is_zero() const { return re.node == gen::kNoNode; }
  };
  using Packed = SamplePair;
  static constexpr int kWidth = 2;

  // The answers to the choices, first to last; those that the plan doesn't foresee are no.
  using Plan = std::vector<bool>;
  TwoSamples(gen::Graph& graph, Leaves leaves, Plan plan)
      : graph_(graph), leaves_(leaves), plan_(std::move(plan)) {}

  Sample input(int n);
  Sample zero() const { return {}; }
  // Scales the sample and makes it sample k of the destination.
  void output(int k, const Sample& sample);

  Packed pack(const std::vector<Sample>& samples);
  Sample unpack(const Packed& packed, int i);
  // Every zero is by itself.
  int pack_of(const Sample& sample) { return sample.is_zero() ? --last_zero_ : sample.re.node; }
  int place_in_pack(const Sample& sample) { return sample.re.index / 2; }
  bool goes_in_lanes(const std::vector<Sample>& block) const;
  std::vector<Sample> leaf_in_lanes(const std::vector<Sample>& block);
  Packed multiply(const Packed& z, const std::vector<ComplexNumber>& constants,
                  bool conjugate = false);
  Packed twiddle(const Packed& z, const std::vector<Turn>& turns, bool conjugate = false);
  bool choose() {
    if (choices_ == plan_.size()) plan_.push_back(false);
    return plan_[choices_++];
  }
  void begin_stage(const std::string& name, const std::string& description) {
    graph_.begin_stage({name, description});
  }

  // The plan, with all answers that were asked for.
  const Plan& plan() const { return plan_; }

 private:
  gen::Graph& graph_;
  Leaves leaves_;
  Plan plan_;
  std::size_t choices_ = 0;
  int last_zero_ = gen::kNoNode;
};

}  // namespace networks
