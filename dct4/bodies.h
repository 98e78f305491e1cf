// The generated arithmetic, as class templates whose specialisations the generator writes. But for
// the base cases, every lane of a vector is a transform of its own.
#pragma once

#include "frame/rows.h"

namespace zulgen {

// run(x, y): the T(N) of u[s] = x.load(s). y.store(2 q, v) and y.store(2 q + 1, v) take the parts
// of z[q].
template <class V, int N>
struct FirstStage;

// run(x, w, y), for r above 8 run(x, w, v, y): a skew transform of r values. x.load(rho) and
// x.load(r + rho) bring the parts of Z[rho], w and v pairs of cosines and sines, for the rotations
// within the first layer and before the second. y.store(4 a, v) and y.store(4 a + 1, v) take the
// parts of Y[a], 4 a + 2 and 4 a + 3 those of the conjugate of Y[r - 1 - a], for a below r / 2.
template <class V, int r>
struct SkewSum;

// run(x, w, y): rotates d values and maps them to 2 d. At x, aligned, stand a row of d real parts
// and one of d imaginary parts for each lane; w brings pairs for the values 0, d - 1, 1, d - 2, ...
template <class V, int d>
struct SecondStage;

// run(x, y): the whole transform of n samples. x may be y.
template <class Sample, int n>
struct BaseCase;

}  // namespace zulgen
