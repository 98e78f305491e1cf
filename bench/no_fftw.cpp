// Stands in for fftw_peer.cpp where FFTW isn't there when this is built.
#include "bench/peers.h"

namespace bench {

std::unique_ptr<Peer> fftw_held_to_sse2(int) { return nullptr; }
std::unique_ptr<Peer> fftw_installed(int) { return nullptr; }

}  // namespace bench
