// FFTW's transforms beside ours.
#pragma once

#include <memory>
#include <vector>

#include "bench/clock.h"
#include "gen/kernel.h"

namespace bench {

// One FFTW library: the one linked into this program, held to SSE2 as our kernels are, or the one
// installed on the machine, with the widest vectors that it knows.
class FftwPeer {
 public:
  static std::unique_ptr<FftwPeer> sse2();
  static std::unique_ptr<FftwPeer> installed();
  virtual ~FftwPeer() = default;

  // `count` plans of FFTW_PATIENT for the kernel's transform, made without wisdom of one another:
  // the planner's own measurements are noisy, so the best of several plans is the fair peer. They
  // run on the given arrays, which planning overwrites.
  virtual std::vector<Contender> plans(const gen::Kernel& kernel, void* source, void* destination,
                                       int count) = 0;
};

}  // namespace bench
