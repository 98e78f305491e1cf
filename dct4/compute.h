// The transform by a plan: kernels on L lanes, and the loops and recursion around them.
//
// A result other than ZULG_OK means a plan that was overwritten; nobody reads it.
#pragma once

#include "dct4/steps.h"

namespace zulgen {

// T(N) on L columns, `count` times, each time a step further on.
struct FirstStages {
  const Sample* forward;   // u[0]
  const Sample* reversed;  // u[1]
  int in_stride;
  Sample* rows;
  int out_stride;
  int count, in_step, out_step;
};

template <int N>
static __attribute__((noinline)) void run_first_stages(const FirstStages& stages) {
  const Sample* forward = stages.forward;
  const Sample* reversed = stages.reversed;
  Sample* rows = stages.rows;
  for (int i = 0; i < stages.count; ++i) {
    const Columns<Sample> x = {forward, reversed, stages.in_stride};
    const Rows<Sample> y = {rows, stages.out_stride};
    if constexpr (N == 2) first_stage_2(x, y);
    if constexpr (N == 4) first_stage_4(x, y);
    if constexpr (N == 8) first_stage_8(x, y);
    if constexpr (N == 16) first_stage_16(x, y);
    if constexpr (N == 32) first_stage_32(x, y);
    if constexpr (N == 64) first_stage_64(x, y);
    forward += stages.in_step;
    reversed -= stages.in_step;
    rows += stages.out_step;
  }
}

static int run_first_stages(int rule, const FirstStages& stages) {
  switch (rule) {
    case 1:
      run_first_stages<2>(stages);
      return ZULG_OK;
    case 2:
      run_first_stages<4>(stages);
      return ZULG_OK;
    case 3:
      run_first_stages<8>(stages);
      return ZULG_OK;
    case 4:
      run_first_stages<16>(stages);
      return ZULG_OK;
    case 5:
      run_first_stages<32>(stages);
      return ZULG_OK;
    case 6:
      run_first_stages<64>(stages);
      return ZULG_OK;
  }
  return ZULG_ERR_CONTEXT;
}

// All skew transforms of an env8, in the columns from `in` and `out` on.
template <int r>
static __attribute__((noinline)) void run_skew_sums(const env8* self, Sample* out,
                                                    const Sample* in) {
  const int row = self->stride, M = self->M;
  // Those of 16 and 32 have a second layer, whose table stands behind that of all first layers; or
  // before it.
  constexpr int within = r > 8 ? r / 4 - 1 : r - 1, across = r > 8 ? r / 4 * 3 : 0;
  const Sample* within_table = self->table;
  const Sample* across_table = self->table;
  if (is_within_first(r)) {
    across_table += 2 * L * within * self->sums;
  } else {
    within_table += 2 * L * across * self->sums;
  }
  for (int kappa = 0; kappa < self->sums; ++kappa) {
    const SourceRows<Sample> x = {in + 2 * kappa * r * row, row};
    const RowPairs<Sample> y = {out + 2 * kappa * row, out + 2 * (M - 1 - kappa) * row, row,
                                2 * M * row};
    const Table<Sample> w = {within_table + 2 * L * within * kappa};
    const Table<Sample> v = {across_table + 2 * L * across * kappa};
    if constexpr (r == 2) skew_sum_2(x, w, y);
    if constexpr (r == 4) skew_sum_4(x, w, y);
    if constexpr (r == 8) skew_sum_8(x, w, y);
    if constexpr (r == 16) skew_sum_16(x, w, v, y);
    if constexpr (r == 32) skew_sum_32(x, w, v, y);
  }
}

static int env8_compute(const env8* self, Sample* dst, const Sample* src, int in, int out) {
  src += in;
  dst += out;
  switch (self->rule) {
    case 1:
      run_skew_sums<2>(self, dst, src);
      return ZULG_OK;
    case 2:
      run_skew_sums<4>(self, dst, src);
      return ZULG_OK;
    case 3:
      run_skew_sums<8>(self, dst, src);
      return ZULG_OK;
    case 4:
      run_skew_sums<16>(self, dst, src);
      return ZULG_OK;
    case 5:
      run_skew_sums<32>(self, dst, src);
      return ZULG_OK;
  }
  return ZULG_ERR_CONTEXT;
}

static int env7_compute(const env7* self, Sample* dst, const Sample* src, int a, int b, int c);

// Inputs go forward from src[a] and backward from src[a + b], results to rows from dst[c] on.
static int env9_compute(const env9* self, Sample* dst, const Sample* src, int a, int b, int c) {
  if (self->rule != 7) {
    return run_first_stages(
        self->rule, {src + a, src + a + b - (self->M - 1) * self->inner_in, self->inner_in, dst + c,
                     self->inner_out, self->r, self->in_stride, self->out_stride});
  }
  const auto nested = static_cast<const env7*>(EnvList_get(self->steps, 0));
  for (int i = 0; i < self->r; ++i) {
    env7_compute(nested, dst, src, a + i * self->in_stride, b - 2 * i * self->in_stride,
                 c + i * self->out_stride);
  }
  return ZULG_OK;
}

static int env7_compute(const env7* self, Sample* dst, const Sample* src, int a, int b, int c) {
  if (self->rule != 1) return ZULG_ERR_CONTEXT;
  env9_compute(static_cast<const env9*>(EnvList_get(self->second, 0)), self->work, src, a, b, c);
  env8_compute(static_cast<const env8*>(EnvList_get(self->first, 0)), dst, self->work, c, c);
  return ZULG_OK;
}

static int env5_compute(const env5* self, Sample* dst, const Sample* src) {
  if (self->rule != 7) {
    return run_first_stages(
        self->rule, {src, src + self->last - (self->N - 1) * self->in_stride, self->in_stride, dst,
                     self->out_stride, self->groups, L, L});
  }
  const auto split = static_cast<const env7*>(EnvList_get(self->steps, 0));
  for (int i = 0; i < self->groups; ++i) {
    env7_compute(split, dst, src, L * i, self->last - 2 * L * i, L * i);
  }
  return ZULG_OK;
}

static int env3_compute(const env3* self, Sample* dst, const Sample* src) {
  if (self->rule != 1) return ZULG_ERR_CONTEXT;
  return env5_compute(static_cast<const env5*>(EnvList_get(self->steps, 0)), dst, src);
}

template <int d>
static __attribute__((noinline)) void run_second_stages(const env4* self, Sample* dst,
                                                        const Sample* src) {
  const int step = 2 * L * self->groups;
  Sample* forward = dst;
  Sample* reversed = dst + self->last - step * (2 * d - 1);
  const Sample* table = self->table;
  for (int g = 0; g < self->groups; ++g) {
    const Table<Sample> w = {table};
    const Results<Sample, d> y = {forward, reversed, step};
    if constexpr (d == 1) second_stage_1(src, w, y);
    if constexpr (d == 2) second_stage_2(src, w, y);
    if constexpr (d == 4) second_stage_4(src, w, y);
    if constexpr (d == 8) second_stage_8(src, w, y);
    if constexpr (d == 16) second_stage_16(src, w, y);
    if constexpr (d == 32) second_stage_32(src, w, y);
    forward += L;
    reversed -= L;
    src += 2 * d * L;
    table += 2 * d * L;
  }
}

static int env4_compute(const env4* self, Sample* dst, const Sample* src) {
  switch (self->rule) {
    case 1:
      run_second_stages<1>(self, dst, src);
      return ZULG_OK;
    case 2:
      run_second_stages<2>(self, dst, src);
      return ZULG_OK;
    case 3:
      run_second_stages<4>(self, dst, src);
      return ZULG_OK;
    case 4:
      run_second_stages<8>(self, dst, src);
      return ZULG_OK;
    case 5:
      run_second_stages<16>(self, dst, src);
      return ZULG_OK;
    case 6:
      run_second_stages<32>(self, dst, src);
      return ZULG_OK;
  }
  return ZULG_ERR_CONTEXT;
}

static int env2_compute(const env2* self, Sample* dst, const Sample* src) {
  if (self->rule != 1) return ZULG_ERR_CONTEXT;
  return env4_compute(static_cast<const env4*>(EnvList_get(self->steps, 0)), dst, src);
}

// Callers may align the stack on 4 bytes; from here on it is aligned on 16, for vectors.
static __attribute__((noinline, force_align_arg_pointer)) zulgResult two_stages(const Sample* src,
                                                                                Sample* dst,
                                                                                const env1* self) {
  env3_compute(static_cast<const env3*>(EnvList_get(self->stage1, 0)), self->work, src);
  env2_compute(static_cast<const env2*>(EnvList_get(self->stage2, 0)), dst, self->work);
  return ZULG_OK;
}

static __attribute__((noinline)) zulgResult run_base_case_8(const Sample* src, Sample* dst) {
  base_case_8(src, dst);
  return ZULG_OK;
}
static __attribute__((noinline)) zulgResult run_base_case_16(const Sample* src, Sample* dst) {
  base_case_16(src, dst);
  return ZULG_OK;
}
static __attribute__((noinline)) zulgResult run_base_case_32(const Sample* src, Sample* dst) {
  base_case_32(src, dst);
  return ZULG_OK;
}

static inline zulgResult env1_compute(const env1* self, Sample* dst, const Sample* src) {
  switch (self->rule) {
    case 1:
      base_case_2(src, dst);
      return ZULG_OK;
    case 2:
      base_case_4(src, dst);
      return ZULG_OK;
    case 3:
      return run_base_case_8(src, dst);
    case 4:
      return run_base_case_16(src, dst);
    case 5:
      return run_base_case_32(src, dst);
    case 6:
      return two_stages(src, dst, self);
  }
  return ZULG_ERR_CONTEXT;
}

}  // namespace zulgen
