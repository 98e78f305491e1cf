// One row of the manifest: a kernel, and everything that lists of kernels are made from.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "gen/graph.h"
#include "gen/schedule.h"

namespace gen {

// Which flag selects the factor 1 / N: the one of its direction, or, if a transform is its own
// inverse, either.
enum class ScaleRule { kForward, kInverse, kBoth };

// How a kernel serves arrays that aren't aligned on 16 bytes.
enum class Bodies {
  kOne,         // scalar code, which doesn't mind
  kBothInside,  // two bodies in the exported function
  kTwin,        // the second body in an internal function of its own
};

struct Kernel {
  std::string name;    // the exported function
  std::string family;  // the source files that it goes to
  std::string recipe;  // the decomposition, in the notation of the family's table
  int length = 0;      // N
  Precision precision = Precision::kSingle;
  ScaleRule scale_rule = ScaleRule::kForward;

  // The C types of what the pointers point to, and how many elements of `precision` are there.
  std::string source_type, destination_type;
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
  Order order;
  // The data flow, as the network gives it.
  std::function<Graph()> graph;

  // The internal function that holds the second body of kTwin.
  std::string twin_name() const;
};

// The graph in the form that is written out: sign flips in constants, lane moves as instructions.
Graph lowered(const Graph& graph, int source_elements, bool loads_halves = false);

// The kernel's functions as C++.
std::string emit_kernel(const Kernel& kernel);

// The scale factors of a length N, computed as the kernels store them.
Quad one_over_n(int n);
Quad one_over_sqrt_n(int n);

}  // namespace gen
