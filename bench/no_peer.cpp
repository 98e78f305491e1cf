// Stands in for fftw_peer.cpp where FFTW isn't installed.
#include "bench/fftw_peer.h"

namespace bench {

std::unique_ptr<FftwPeer> FftwPeer::sse2() { return nullptr; }
std::unique_ptr<FftwPeer> FftwPeer::installed() { return nullptr; }

}  // namespace bench
