// The objects of a plan.
//
//   env1            the whole transform of length n, or a base case
//     envfCompose     the angles of the rotations
//     env2            second stage: m vectors of d values
//       envfsplit       the angles, by group and lane
//       env4            leaf: rotates and maps them, L of the m at a time
//     env3            first stage: d columns of N values
//       env5            T(N) on L columns at a time
//         env7            a T(N) too long for one kernel, split by r
//           envlambda       by how much the frequencies of the skew transforms are moved
//           env8            leaf: the M / 2 skew transforms of r values
//           env9            r transforms T(M), M = N / r, each a kernel or an env7 again
//
// with n = N d = 2 m d. Each object is owned by the one it stands under, in `children`; the other
// lists give quick access to some of these. Parameters are those of the formula that a step stands
// for: some repeat another, and some are read by nobody.
#pragma once

#include <type_traits>

#include "dct4/arena.h"
#include "dct4/names.h"
#include "frame/rows.h"
#include "zulgen.h"

namespace zulgen::DCT4_NAMESPACE {

using Sample = DCT4_OF_TYPE(zulg, );
// Its L lanes are in a plan's sizes, tables and strides, whatever vectors a processor has.
using Vector = std::conditional_t<sizeof(Sample) == sizeof(float), F4, D2>;
constexpr int L = kLanes<Vector>;
// A processor's own hold the lanes of as many groups side by side.
using WideVector = Wide<Vector>;
constexpr int W = kLanes<WideVector>, kSideBySide = W / L;

struct Step {  // what every step begins with
  ObjectHeader header;
  int (*plan)(void* object);
  Arena* arena;
};

struct Function {  // what every function object begins with
  ObjectHeader header;
  Sample (*at)(const void* object, int u, int v, int w);
  Arena* arena;
};

DCT4_CLASS(envfCompose) {
  Function function;
  int row, denominator, m, d, row_2;  // 2 d, 8 n, m, d, 2 d
};

DCT4_CLASS(envfsplit) {
  Function function;
  int row, groups;  // 2 d, m / L
  envfCompose* compose;
};

DCT4_CLASS(envlambda) {
  Function function;
  int N, r;
};

DCT4_CLASS(env1) {
  Step step;
  EnvList *children, *stage2, *stage1;
  Sample* work = nullptr;  // n samples, between the stages: N rows of d
  int rule = 0, d = 0, n;
};

DCT4_CLASS(env2) {
  Step step;
  EnvList *children, *steps;
  Sample* work = nullptr;                       // stays null
  int rule = 0, d, n, kernel, m, n_2, last, N;  // kernel: 2 d; last: 2 n - 1
  envfCompose* twiddle;
};

DCT4_CLASS(env3) {
  Step step;
  EnvList *children, *steps;
  Sample* work = nullptr;                         // stays null
  int rule = 0, N, n, last, stride, d, n_2, d_2;  // stride: 2 d
};

DCT4_CLASS(env4) {
  Step step;
  EnvList* children;                                        // none
  Sample* table = nullptr;                                  // for each group, d pairs of vectors
  int rule = 0, d, n, kernel, block, groups, n_2, last, N;  // block: 2 d L, groups: m / L
  envfsplit* twiddle;
};

DCT4_CLASS(env5) {
  Step step;
  EnvList *children, *steps;
  Sample* work = nullptr;                                        // stays null
  int rule = 0, N, n, last, in_stride, groups, n_2, out_stride;  // in_stride: 2 d, out_stride: d
};

DCT4_CLASS(env7) {
  Step step;
  EnvList *children, *first, *second;
  Sample* work = nullptr;  // n samples, between the steps, of which a call uses L columns
  int rule = 0, N, r = 0, n, n_2, in_stride, n_3, out_stride;
};

DCT4_CLASS(env8) {
  Step step;
  EnvList* children;  // none
  // For each of the transforms, r - 1 pairs of vectors, each of equal lanes.
  Sample* table = nullptr;
  // block: 2 r stride, sums: M / 2, half: N / 2, last: N - 1
  int rule = 0, r, n, stride, block, sums, n_2, half, last, stride_2, M;
  envlambda* lambda;
};

// Transforms of more than 8 values have two layers. Which one's table comes first:
constexpr bool is_within_first(int r) { return L == 2 && r == 32; }

DCT4_CLASS(env9) {
  Step step;
  EnvList *children, *steps;
  Sample* work = nullptr;  // stays null
  // inner_in and inner_out: strides of the T(M), r times those of the split
  int rule = 0, M, n, n_2, inner_in, in_stride, r, n_3, inner_out, out_stride;
};

}  // namespace zulgen::DCT4_NAMESPACE
