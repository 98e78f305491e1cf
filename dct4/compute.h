// The transform by a plan: kernels on the lanes of a vector, and the loops and recursion around them.
//
// A result other than ZULG_OK means a plan that was overwritten; nobody reads it.
#pragma once

#include "dct4/bodies.h"
#include "dct4/lanes.h"
#include "dct4/steps.h"

namespace zulgen::DCT4_NAMESPACE {

// Runs what a rule stands for: run<size>() for 1, run<2 size>() for 2, and so on up to `count`.
template <int size, int count>
ZULGEN_BODY int run_rule(int rule, const auto& run) {
  if constexpr (count == 0) {
    return ZULG_ERR_CONTEXT;
  } else {
    return rule == 1 ? run.template operator()<size>()
                     : run_rule<2 * size, count - 1>(rule - 1, run);
  }
}

// Runs groups of L lanes: run<WideVector>(0, count) for as many as go side by side, and, if one is
// left over, run<Vector>(groups - 1, 1).
ZULGEN_BODY void run_groups(int groups, const auto& run) {
  const int left = groups % kSideBySide;
  if (groups > left) run.template operator()<WideVector>(0, groups / kSideBySide);
  if constexpr (kSideBySide > 1) {
    if (left > 0) run.template operator()<Vector>(groups - left, left);
  }
}

// T(N) on the columns of a vector, `count` times, each time a step further on.
struct FirstStages {
  const Sample* forward;   // u[0]
  const Sample* reversed;  // u[1]
  int in_stride;
  Sample* rows;
  int out_stride;
  int count, in_step, out_step;
};

template <class V, int N>
static __attribute__((noinline)) int run_first_stages(const FirstStages& stages) {
  const Sample* forward = stages.forward;
  const Sample* reversed = stages.reversed;
  Sample* rows = stages.rows;
  for (int i = 0; i < stages.count; ++i) {
    // Strides that may have changed keep compilers from storing their multiples on the stack.
    const Columns<V> x = {forward, reversed, stages.in_stride};
    const Rows<V> y = {rows, stages.out_stride};
    FirstStage<V, N>::run(x, y);
    forward += stages.in_step;
    reversed -= stages.in_step;
    rows += stages.out_step;
  }
  return ZULG_OK;
}

template <class V>
static int run_first_stages(int rule, const FirstStages& stages) {
  return run_rule<2, 6>(rule, [&]<int N> { return run_first_stages<V, N>(stages); });
}

// A split works on W columns at a time, of which there are 32 then. What stands between its two
// steps are N rows of W samples, which lie side by side at the beginning of its work buffer: so
// they stay in the cache from one call to the next, where rows as far apart as those of the other
// buffers, a power of two, would push one another out.

// All skew transforms of an env8, from side by side rows to rows `row` samples apart.
template <int r>
static __attribute__((noinline)) int run_skew_sums(const env8* self, Sample* dst, int row,
                                                   const Sample* src) {
  // Those of 16 and 32 have a second layer, whose table stands before or behind all of the first.
  constexpr int within = 2 * L * (r > 8 ? r / 4 - 1 : r - 1);
  constexpr int across = 2 * L * (r > 8 ? r / 4 * 3 : 0);
  const Sample* within_table = self->table + (is_within_first(r) ? 0 : across * self->sums);
  const Sample* across_table = self->table + (is_within_first(r) ? within * self->sums : 0);
  const int step = 2 * row * self->M;
  Sample* direct = dst;
  Sample* mirrored = dst + step - 2 * row;
  for (int kappa = 0; kappa < self->sums; ++kappa) {
    const auto x = vectors_from<WideVector>(src);
    const Table<WideVector, L, 0> w = {within_table}, v = {across_table};
    const RowPairs<WideVector> y = {direct, mirrored, row, step};
    if constexpr (r <= 8) {
      SkewSum<WideVector, r>::run(x, w, y);
    } else {
      SkewSum<WideVector, r>::run(x, w, v, y);
    }
    src += 2 * W * r;
    direct += 2 * row;
    mirrored -= 2 * row;
    within_table += within;
    across_table += across;
  }
  return ZULG_OK;
}

DCT4_FUNCTION(int, env8_compute, const env8* self, Sample* dst, int row, const Sample* src) {
  return run_rule<2, 5>(self->rule, [&]<int r> { return run_skew_sums<r>(self, dst, row, src); });
}

// The first two elements of a T(N), u[0] and u[1], tell where the others are: the even ones go
// forward from the one, the odd ones backward, as far apart, from the other.
DCT4_DECLARE(int, env7_compute, const env7* self, Sample* dst, int row, const Sample* forward,
             const Sample* reversed);

DCT4_FUNCTION(int, env9_compute, const env9* self, Sample* dst, int row, const Sample* forward,
              const Sample* reversed) {
  reversed += (self->r - 1) * self->in_stride;
  if (self->rule != 7) {
    return run_first_stages<WideVector>(self->rule, {.forward = forward,
                                                     .reversed = reversed,
                                                     .in_stride = self->inner_in,
                                                     .rows = dst,
                                                     .out_stride = self->r * row,
                                                     .count = self->r,
                                                     .in_step = self->in_stride,
                                                     .out_step = row});
  }
  const auto nested = first_in<env7>(self->steps);
  for (int i = 0; i < self->r; ++i) {
    env7_compute(nested, dst + i * row, self->r * row, forward + i * self->in_stride,
                 reversed - i * self->in_stride);
  }
  return ZULG_OK;
}

DCT4_DEFINE(int, env7_compute, const env7* self, Sample* dst, int row, const Sample* forward,
            const Sample* reversed) {
  if (self->rule != 1) return ZULG_ERR_CONTEXT;
  env9_compute(first_in<env9>(self->second), self->work, W, forward, reversed);
  env8_compute(first_in<env8>(self->first), dst, row, self->work);
  return ZULG_OK;
}

DCT4_FUNCTION(int, env5_compute, const env5* self, Sample* dst, const Sample* src) {
  const Sample* const reversed = src + (self->last - (self->N - 1) * self->in_stride);
  if (self->rule != 7) {
    int result = ZULG_OK;
    run_groups(self->groups, [&]<class V>(int first, int count) {
      result = run_first_stages<V>(self->rule, {.forward = src + L * first,
                                                .reversed = reversed - L * first,
                                                .in_stride = self->in_stride,
                                                .rows = dst + L * first,
                                                .out_stride = self->out_stride,
                                                .count = count,
                                                .in_step = kLanes<V>,
                                                .out_step = kLanes<V>});
    });
    return result;
  }
  const auto split = first_in<env7>(self->steps);
  for (int at = 0; at < L * self->groups; at += W) {
    env7_compute(split, dst + at, self->out_stride, src + at, reversed - at);
  }
  return ZULG_OK;
}

DCT4_FUNCTION(int, env3_compute, const env3* self, Sample* dst, const Sample* src) {
  if (self->rule != 1) return ZULG_ERR_CONTEXT;
  return env5_compute(first_in<env5>(self->steps), dst, src);
}

// All groups of an env4.
template <int d>
static __attribute__((noinline)) int run_second_stages(const env4* self, Sample* dst,
                                                       const Sample* src) {
  const int step = 2 * L * self->groups;
  run_groups(self->groups, [&]<class V>(int first, int count) {
    const Sample* x = src + 2 * d * L * first;
    const Sample* table = self->table + 2 * d * L * first;
    Results<V, d> y = {dst + L * first, dst + self->last - step * (2 * d - 1) - L * first, step};
    for (int i = 0; i < count; ++i) {
      SecondStage<V, d>::run(x, Table<V, L, 2 * d * L>{table}, y);
      y.forward += kLanes<V>;
      y.reversed -= kLanes<V>;
      x += 2 * d * kLanes<V>;
      table += 2 * d * kLanes<V>;
    }
  });
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
  Results<WideVector, d> y = {dst, dst + self->last - step * (2 * d - 1), step};
  alignas(64) Sample lines[2 * d * kLine];
  for (int g = 0; g < self->groups; g += kLine / L) {
    for (int lane = 0; lane < kLine; lane += W) {
      SecondStage<WideVector, d>::run(src, Table<WideVector, L, 2 * d * L>{table},
                                      Rows<WideVector>{lines + lane, kLine});
      src += 2 * d * W;
      table += 2 * d * W;
    }
    y.template store_rows<kLine / W>(lines);
    y.forward += kLine;
    y.reversed -= kLine;
  }
  return ZULG_OK;
}

DCT4_FUNCTION(int, env4_compute, const env4* self, Sample* dst, const Sample* src) {
  // From where on lines pay, as measured.
  constexpr int kLinesFrom = L == 4 ? 16384 : 8192;
  if (self->rule == 6 && self->n >= kLinesFrom) return run_second_stages_by_lines(self, dst, src);
  return run_rule<1, 6>(self->rule, [&]<int d> { return run_second_stages<d>(self, dst, src); });
}

DCT4_FUNCTION(int, env2_compute, const env2* self, Sample* dst, const Sample* src) {
  if (self->rule != 1) return ZULG_ERR_CONTEXT;
  return env4_compute(first_in<env4>(self->steps), dst, src);
}

// Callers may align the stack on 4 bytes; from here on it is aligned on 16, for vectors.
static __attribute__((noinline, force_align_arg_pointer)) zulgResult two_stages(const Sample* src,
                                                                                Sample* dst,
                                                                                const env1* self) {
  env3_compute(first_in<env3>(self->stage1), self->work, src);
  env2_compute(first_in<env2>(self->stage2), dst, self->work);
  return ZULG_OK;
}

template <int n>
ZULGEN_BODY zulgResult run_base_case(const Sample* src, Sample* dst) {
  BaseCase<Sample, n>::run(src, dst);
  return ZULG_OK;
}

// Not inlined, so that the shortest lengths don't pay for the stack frames of these.
template <int n>
static __attribute__((noinline)) zulgResult call_base_case(const Sample* src, Sample* dst) {
  return run_base_case<n>(src, dst);
}

DCT4_FUNCTION(zulgResult, env1_compute, const env1* self, Sample* dst, const Sample* src) {
  switch (self->rule) {
    case 1:
      return run_base_case<2>(src, dst);
    case 2:
      return run_base_case<4>(src, dst);
    case 3:
      return call_base_case<8>(src, dst);
    case 4:
      return call_base_case<16>(src, dst);
    case 5:
      return call_base_case<32>(src, dst);
    case 6:
      return two_stages(src, dst, self);
  }
  return ZULG_ERR_CONTEXT;
}

}  // namespace zulgen::DCT4_NAMESPACE
