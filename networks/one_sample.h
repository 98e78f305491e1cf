// The plain form of a complex transform: every sample is a value of its own.
#pragma once

#include <string>
#include <vector>

#include "gen/graph.h"
#include "networks/turn.h"

namespace networks {

template <class V>
class OneSample {
 public:
  using Sample = Complex<V>;
  using Packed = Complex<V>;
  static constexpr int kWidth = 1;

  OneSample() = default;
  // The values are nodes of `graph`.
  explicit OneSample(gen::Graph& graph, const Sample& zero = {}) : graph_(&graph), zero_(zero) {}
  explicit OneSample(Diagonal diagonal) : diagonal_(diagonal) {}

  Packed pack(const std::vector<Sample>& samples) { return samples[0]; }
  Sample unpack(const Packed& packed, int) { return packed; }
  Sample zero() const { return zero_; }
  int pack_of(const Sample&) { return next_pack_++; }
  int place_in_pack(const Sample&) { return 0; }
  bool goes_in_lanes(const std::vector<Sample>&) { return false; }
  std::vector<Sample> leaf_in_lanes(const std::vector<Sample>& block) { return block; }
  Packed multiply(const Packed& z, const std::vector<ComplexNumber>& constants,
                  bool conjugate = false) {
    const Number re = constants[0].re, im = conjugate ? -constants[0].im : constants[0].im;
    return {re * z.re - im * z.im, re * z.im + im * z.re};
  }
  Packed twiddle(const Packed& z, const std::vector<Turn>& turns, bool conjugate = false) {
    return rotate(z, conjugate ? -turns[0] : turns[0], diagonal_);
  }
  bool choose() { return false; }
  void begin_stage(const std::string& name, const std::string& description) {
    if (graph_ != nullptr) graph_->begin_stage({name, description});
  }

 private:
  gen::Graph* graph_ = nullptr;
  Sample zero_ = {};
  Diagonal diagonal_ = Diagonal::kProductsFirst;
  int next_pack_ = 0;
};

}  // namespace networks
