// Other libraries' transforms beside ours.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "bench/subject.h"

namespace bench {

class Peer {
 public:
  virtual ~Peer() = default;
  virtual std::string name() const = 0;

  // Several ways of computing the subject's transform, up to the order of its real values; none if
  // the peer has none. They run on the arrays, which making them may overwrite.
  virtual std::vector<Contender> ways(const Subject& subject, Arrays& arrays) = 0;
};

// FFTW, held to SSE2 as plain x86-64 is, and as it is installed, with the widest vectors that it
// knows. Each way is a plan of FFTW_PATIENT, made without wisdom of the others: the planner's own
// measurements are noisy, so the best of several plans is the fair peer. Null if FFTW isn't there.
std::unique_ptr<Peer> fftw_held_to_sse2(int plans);
std::unique_ptr<Peer> fftw_installed(int plans);

// KissFFT, which Debian has in single precision: complex transforms, and real ones of even length.
// Null if it isn't there.
std::unique_ptr<Peer> kissfft();

}  // namespace bench
