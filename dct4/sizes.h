// Which rule each step takes, and how large a plan is.
//
// The sizing pass makes the decisions of the planning pass on parameters alone: what the one adds
// up, the other allocates. It charges every addition to a list, so it is above the need by the
// nodes that the first ones don't take. A negative result is a failure, also where a sum has
// wrapped: every level returns it at once.
#pragma once

#include "dct4/splits.h"
#include "dct4/steps.h"

namespace zulgen::DCT4_NAMESPACE {

// 1 to 5: the base cases; 6: two stages.
DCT4_FUNCTION(int, env1__chooseRule, int n) { return rule_of_size(n, 2, 5, 6); }
// 1 to 6: the kernels of T(2) to T(64); 7: a split.
DCT4_FUNCTION(int, env5__chooseRule, int N) { return rule_of_size(N, 2, 6, 7); }
DCT4_FUNCTION(int, env9__chooseRule, int M) { return rule_of_size(M, 2, 6, 7); }
// 1 to 5: the kernels of 2 to 32 values; 0: none.
DCT4_FUNCTION(int, env8__chooseRule, int r) { return rule_of_size(r, 2, 5, 0); }
// 1 to 6: the kernels of 1 to 32 values; 0: none.
DCT4_FUNCTION(int, env4__chooseRule, int d) { return rule_of_size(d, 1, 6, 0); }

static int samples_mem(int count) {
  return zulgAlignSize32Bytes(wrapping_product(count, static_cast<int>(sizeof(Sample))));
}
// Heads of lists, which cost as much as additions to one.
static int lists_mem(int count) { return EnvList_add_mem(count); }
template <class Object>
static int object_mem() {
  return zulgAlignSize32Bytes(sizeof(Object));
}

// Pairs of a vector of cosines and one of sines.
static int env4_table_bytes(int d, int groups) {
  return wrapping_product(groups, d, 2 * static_cast<int>(sizeof(Vector)));
}
static int env8_table_bytes(int r, int sums) {
  return wrapping_product(sums, r - 1, 2 * static_cast<int>(sizeof(Vector)));
}

DCT4_FUNCTION(int, env4_mem, int d, int groups) {
  return wrapping_sum(zulgAlignSize32Bytes(env4_table_bytes(d, groups)), object_mem<env4>(),
                      lists_mem(1));
}

DCT4_FUNCTION(int, env2_mem, int d, int m) {
  if (m % L != 0) return ZULG_ERR_SIZE;
  const int leaf = env4_mem(d, m / L);
  if (leaf < 0) return leaf;
  return wrapping_sum(leaf, object_mem<env2>(), object_mem<envfsplit>(), lists_mem(2),
                      EnvList_add_mem(3));
}

DCT4_FUNCTION(int, env8_mem, int r, int sums) {
  return wrapping_sum(zulgAlignSize32Bytes(env8_table_bytes(r, sums)), object_mem<env8>(),
                      lists_mem(1));
}

DCT4_DECLARE(int, env7_mem, int N, int n);

// A step that runs T(N), by a kernel or else by an env7.
template <class Object>
static int first_stage_mem(int rule, int N, int n) {
  const int own = wrapping_sum(object_mem<Object>(), lists_mem(2));
  if (rule != 7) return own;
  const int child = env7_mem(N, n);
  return child < 0 ? child : wrapping_sum(child, own, EnvList_add_mem(2));
}

DCT4_FUNCTION(int, env9_mem, int M, int n) {
  return first_stage_mem<env9>(env9__chooseRule(M), M, n);
}

DCT4_DEFINE(int, env7_mem, int N, int n) {
  int r;
  if (const int error = divisorsIntNonTriv(&r, N / 2)) return error;
  const int leaf = env8_mem(r, N / (2 * r));
  if (leaf < 0) return leaf;
  const int child = env9_mem(N / r, n);
  if (child < 0) return child;
  return wrapping_sum(leaf, child, samples_mem(n), object_mem<env7>(), object_mem<envlambda>(),
                      lists_mem(3), EnvList_add_mem(5));
}

DCT4_FUNCTION(int, env5_mem, int N, int n) {
  return first_stage_mem<env5>(env5__chooseRule(N), N, n);
}

DCT4_FUNCTION(int, env3_mem, int d, int N, int n) {
  if (d % L != 0) return ZULG_ERR_SIZE;
  const int child = env5_mem(N, n);
  if (child < 0) return child;
  return wrapping_sum(child, object_mem<env3>(), lists_mem(2), EnvList_add_mem(2));
}

DCT4_FUNCTION(int, env1_mem, int n) {
  const int own = wrapping_sum(object_mem<env1>(), lists_mem(3));
  if (env1__chooseRule(n) != 6) return own;
  int d;
  if (const int error = divisorsIntNonTriv(&d, n / 2)) return error;
  const int second = env2_mem(d, n / (2 * d));
  if (second < 0) return second;
  const int first = env3_mem(d, n / d, n);
  if (first < 0) return first;
  return wrapping_sum(second, first, own, samples_mem(n), object_mem<envfCompose>(),
                      EnvList_add_mem(5));
}

}  // namespace zulgen::DCT4_NAMESPACE
