// Uses both installed libraries through the C++ header.
#include <zulcore.h>

#include <array>
#include <cstdio>
#include <zulgen.hpp>

int main() {
  const std::array<std::complex<double>, 2> x = {{{1, 2}, {3, 4}}}, wanted = {{{4, 6}, {-2, -2}}};
  std::array<std::complex<double>, 2> y;
  const bool right = zulgen::dft_forward<2>(x, y, zulgen::Scale::kNone) == ZULG_OK && y == wanted;
  zulFree(zulMalloc(1));
  std::puts(right ? "right" : "wrong");
  return right ? 0 : 1;
}
