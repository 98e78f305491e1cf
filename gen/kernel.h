// One row of the manifest: a kernel, and everything that lists of kernels are made from.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "gen/form.h"
#include "gen/graph.h"
#include "gen/signature.h"

namespace gen {

// How a kernel serves arrays that aren't aligned on 16 bytes, on a target that minds.
enum class Bodies {
  kOne,         // scalar code, which doesn't mind
  kBothInside,  // two bodies in the exported function
  kTwin,        // the second body in an internal function of its own
};

struct Kernel : Signature {
  // The exported function.
  std::string name;
  // The decomposition, in the notation of the family's table.
  std::string recipe;
  // How many elements of `precision` the arrays hold.
  int source_elements = 0, destination_elements = 0;

  // An exported function that does the very same, for this name to stand for; or empty.
  std::string same_as;

  Bodies bodies = Bodies::kOne;
  // Whether the caller may pass a fourth argument, a work buffer.
  bool has_work_argument = false;
  // Whether the function is generated, and not written by hand over generated bodies.
  bool is_generated = true;
  // See load_vectors().
  bool loads_halves = false;
  // The data flow, as the network gives it; and the same values in vectors of 256 bits, if that is
  // no matter of packing.
  std::function<Graph()> graph, wide_graph;

  bool is_wide(const MoveSet& moves) const { return wide_graph && moves.vector_bits() == 256; }

  // The C type of the samples.
  std::string sample_type() const { return "zulg" + type_of(*this); }
};

// A kernel with the number of samples that its signature tells on either side, without its
// arithmetic.
Kernel kernel_of(const Signature& signature);

// The graph in the form that is written out: sign flips in constants, lane moves as instructions.
Graph lowered(const Graph& graph, int source_elements, bool loads_halves = false);

// That form, numbered from its outputs, packed as the pairings tell one after the other. What comes
// out is proved to be equal. Throws std::invalid_argument.
Graph packed(const Graph& lowered, const std::vector<Pairing>& pairings, const MoveSet& moves);

// The kernel's data flow, which `graph` is, as it is written out in that form.
Graph written_graph(const Kernel& kernel, const Graph& graph, const Form& form);

// The kernel's functions as C++, and what they cost.
struct WrittenKernel {
  std::string text;
  double port_bound = 0;  // see cost.h
};
WrittenKernel emit_kernel(const Kernel& kernel, const Form& form);

// The scale factors of a length N, computed as the kernels store them.
Quad one_over_n(int n);
Quad one_over_sqrt_n(int n);

}  // namespace gen
