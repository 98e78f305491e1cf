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
static __attribute__((noinline)) int run_first_stages(const FirstStages& stages) {
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
  return ZULG_OK;
}

static int run_first_stages(int rule, const FirstStages& stages) {
  switch (rule) {
    case 1:
      return run_first_stages<2>(stages);
    case 2:
      return run_first_stages<4>(stages);
    case 3:
      return run_first_stages<8>(stages);
    case 4:
      return run_first_stages<16>(stages);
    case 5:
      return run_first_stages<32>(stages);
    case 6:
      return run_first_stages<64>(stages);
  }
  return ZULG_ERR_CONTEXT;
}

// A split works on L columns at a time. What stands between its two steps are N rows of L samples,
// which lie side by side at the beginning of its work buffer: so they stay in the cache from one
// call to the next, where rows as far apart as those of the other buffers, a power of two, would
// push one another out.

// All skew transforms of an env8, from side by side rows to rows `row` samples apart.
template <int r>
static __attribute__((noinline)) int run_skew_sums(const env8* self, Sample* out, int row,
                                                   const Sample* in) {
  // Those of 16 and 32 have a second layer, whose table stands before or behind all of the first.
  constexpr int within = r > 8 ? r / 4 - 1 : r - 1, across = r > 8 ? r / 4 * 3 : 0;
  const Sample* within_table = self->table;
  const Sample* across_table = self->table;
  if (is_within_first(r)) {
    across_table += 2 * L * within * self->sums;
  } else {
    within_table += 2 * L * across * self->sums;
  }
  const int step = 2 * row * self->M;
  Sample* direct = out;
  Sample* mirrored = out + step - 2 * row;
  for (int kappa = 0; kappa < self->sums; ++kappa) {
    const SourceRows<Sample> x = {in, L};
    const RowPairs<Sample> y = {direct, mirrored, row, step};
    const Table<Sample> w = {within_table};
    const Table<Sample> v = {across_table};
    if constexpr (r == 2) skew_sum_2(x, w, y);
    if constexpr (r == 4) skew_sum_4(x, w, y);
    if constexpr (r == 8) skew_sum_8(x, w, y);
    if constexpr (r == 16) skew_sum_16(x, w, v, y);
    if constexpr (r == 32) skew_sum_32(x, w, v, y);
    in += 2 * L * r;
    direct += 2 * row;
    mirrored -= 2 * row;
    within_table += 2 * L * within;
    across_table += 2 * L * across;
  }
  return ZULG_OK;
}

static int env8_compute(const env8* self, Sample* dst, int row, const Sample* src) {
  switch (self->rule) {
    case 1:
      return run_skew_sums<2>(self, dst, row, src);
    case 2:
      return run_skew_sums<4>(self, dst, row, src);
    case 3:
      return run_skew_sums<8>(self, dst, row, src);
    case 4:
      return run_skew_sums<16>(self, dst, row, src);
    case 5:
      return run_skew_sums<32>(self, dst, row, src);
  }
  return ZULG_ERR_CONTEXT;
}

static int env7_compute(const env7* self, Sample* dst, int row, const Sample* src, int a, int b);

// Inputs go forward from src[a] and backward from src[a + b], results to rows from dst on.
static int env9_compute(const env9* self, Sample* dst, int row, const Sample* src, int a, int b) {
  if (self->rule != 7) {
    return run_first_stages(
        self->rule, {src + a, src + a + b - (self->M - 1) * self->inner_in, self->inner_in, dst,
                     self->r * row, self->r, self->in_stride, row});
  }
  const auto nested = static_cast<const env7*>(EnvList_get(self->steps, 0));
  for (int i = 0; i < self->r; ++i) {
    env7_compute(nested, dst + i * row, self->r * row, src, a + i * self->in_stride,
                 b - 2 * i * self->in_stride);
  }
  return ZULG_OK;
}

static int env7_compute(const env7* self, Sample* dst, int row, const Sample* src, int a, int b) {
  if (self->rule != 1) return ZULG_ERR_CONTEXT;
  env9_compute(static_cast<const env9*>(EnvList_get(self->second, 0)), self->work, L, src, a, b);
  env8_compute(static_cast<const env8*>(EnvList_get(self->first, 0)), dst, row, self->work);
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
    env7_compute(split, dst + L * i, self->out_stride, src, L * i, self->last - 2 * L * i);
  }
  return ZULG_OK;
}

static int env3_compute(const env3* self, Sample* dst, const Sample* src) {
  if (self->rule != 1) return ZULG_ERR_CONTEXT;
  return env5_compute(static_cast<const env5*>(EnvList_get(self->steps, 0)), dst, src);
}

// L second stages, of one group.
template <int d, class Destination>
ZULGEN_BODY void second_stage(const Sample* rows, const Sample* table, const Destination& y) {
  const Table<Sample> w = {table};
  if constexpr (d == 1) second_stage_1(rows, w, y);
  if constexpr (d == 2) second_stage_2(rows, w, y);
  if constexpr (d == 4) second_stage_4(rows, w, y);
  if constexpr (d == 8) second_stage_8(rows, w, y);
  if constexpr (d == 16) second_stage_16(rows, w, y);
  if constexpr (d == 32) second_stage_32(rows, w, y);
}

// All groups of an env4.
template <int d>
static __attribute__((noinline)) int run_second_stages(const env4* self, Sample* dst,
                                                       const Sample* src) {
  const int step = 2 * L * self->groups;
  const Sample* table = self->table;
  Results<Sample, d> y = {dst, dst + self->last - step * (2 * d - 1), step};
  for (int g = 0; g < self->groups; ++g) {
    second_stage<d>(src, table, y);
    y.forward += L;
    y.reversed -= L;
    src += 2 * d * L;
    table += 2 * d * L;
  }
  return ZULG_OK;
}

// The same for long transforms, whose results are so far apart, a power of two, that they would
// push one another out of the cache before the next group completes their cache lines: the results
// of a line's groups are collected first. With d of 32, groups come in multiples of four.
static __attribute__((noinline)) int run_second_stages_by_lines(const env4* self, Sample* dst,
                                                                const Sample* src) {
  constexpr int d = 32, kLine = 64 / sizeof(Sample);
  const int step = 2 * L * self->groups;
  const Sample* table = self->table;
  Results<Sample, d> y = {dst, dst + self->last - step * (2 * d - 1), step};
  alignas(64) Sample lines[2 * d * kLine];
  for (int g = 0; g < self->groups; g += kLine / L) {
    for (int lane = 0; lane < kLine; lane += L) {
      second_stage<d>(src, table, Rows<Sample>{lines + lane, kLine});
      src += 2 * d * L;
      table += 2 * d * L;
    }
    y.store_rows<kLine / L>(lines);
    y.forward += kLine;
    y.reversed -= kLine;
  }
  return ZULG_OK;
}

static int env4_compute(const env4* self, Sample* dst, const Sample* src) {
  switch (self->rule) {
    case 1:
      return run_second_stages<1>(self, dst, src);
    case 2:
      return run_second_stages<2>(self, dst, src);
    case 3:
      return run_second_stages<4>(self, dst, src);
    case 4:
      return run_second_stages<8>(self, dst, src);
    case 5:
      return run_second_stages<16>(self, dst, src);
    case 6:
      return self->n < kLinesFrom ? run_second_stages<32>(self, dst, src)
                                  : run_second_stages_by_lines(self, dst, src);
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

// Not inlined, so that the shortest lengths don't pay for the stack frames of these.
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
