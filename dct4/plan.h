// Building a plan and taking it down.
//
// A step is constructed, then planned: `plan` fixes the rule, fills the table and builds the steps
// below. A step that fails returns at once and leaves what it has built: every child is in
// `children` before it is planned, so the root's destructor reaches all of it. Destructors go by
// the rule, not by what was allocated, and leave the object's own memory to its owner.
#pragma once

#include "dct4/sizes.h"
#include "dct4/twiddles.h"

namespace zulgen {

static inline EnvList* new_list(Arena* arena) {
  return EnvList___init__(static_cast<EnvList*>(zulgArenaMalloc(arena, sizeof(EnvList))), arena);
}

static void free_list(EnvList* list) {
  EnvList___del__(list);
  zulgArenaFree(list->arena, list, sizeof(EnvList));
}

static void free_children(EnvList* list) {
  EnvList_freeChildren(list);
  free_list(list);
}

static int plan_first(const EnvList* list) {
  void* const object = EnvList_get(list, 0);
  return static_cast<Step*>(object)->plan(object) == 0 ? ZULG_OK : ZULG_ERR_SIZE;
}

static inline Sample* new_samples(Arena* arena, int bytes) {
  return static_cast<Sample*>(zulgArenaMalloc(arena, bytes));
}

// The tables.

// Cosine and sine of pi x, each in all lanes of a vector; returns what is behind them.
static Sample* put_pair(Sample* table, Sample x) {
  const Sample cosine_of_x = zulgCosPi(x), sine_of_x = zulgSinPi(x);
  for (int lane = 0; lane < L; ++lane) {
    table[lane] = cosine_of_x;
    table[L + lane] = sine_of_x;
  }
  return table + 2 * L;
}

// The rotations of a skew transform of `size` values, for every lambda.
static Sample* put_within(Sample* table, const env8* self, int size) {
  for (int kappa = 0; kappa < self->sums; ++kappa) {
    const Sample lambda = call_at(self->lambda, kappa, 0, 0);
    for (int k = 1; k < size; ++k) {
      table = put_pair(table, lambda * (static_cast<Sample>(2 * k) / static_cast<Sample>(size)));
    }
  }
  return table;
}

// Those of the second layer of one of `4 * count` values.
static Sample* put_across(Sample* table, const env8* self, int count) {
  for (int kappa = 0; kappa < self->sums; ++kappa) {
    const Sample lambda = call_at(self->lambda, kappa, 0, 0);
    for (int j = 0; j < count; ++j) {
      const Sample moved = lambda + static_cast<Sample>(j);
      for (int k = 1; k < 4; ++k) {
        table = put_pair(table, static_cast<Sample>(moved * (1.0 / count) * (k / 2.0)));
      }
    }
  }
  return table;
}

static void fill_table(const env8* self) {
  if (self->r <= 8) {
    put_within(self->table, self, self->r);
  } else if (is_within_first(self->r)) {
    put_across(put_within(self->table, self, self->r / 4), self, self->r / 4);
  } else {
    put_within(put_across(self->table, self, self->r / 4), self, self->r / 4);
  }
}

// Columns go in pairs from both ends, as the kernel meets them: 0, d - 1, 1, d - 2, ...
static void fill_table(const env4* self) {
  Sample* table = self->table;
  for (int g = 0; g < self->groups; ++g) {
    for (int i = 0; i < self->d; ++i) {
      const int p = i % 2 == 0 ? i / 2 : self->d - 1 - i / 2;
      for (int part = 0; part < 2; ++part) {
        for (int lane = 0; lane < L; ++lane) {
          *table++ = envfsplit_at(self->twiddle, g, lane, 2 * p + part);
        }
      }
    }
  }
}

// env8

static void env8___del__(void* object) {
  const auto self = static_cast<env8*>(object);
  if (self->rule >= 1 && self->rule <= 5) {
    zulgArenaFree(self->step.arena, self->table, env8_table_bytes(self->r, self->sums));
  }
  free_children(self->children);
}

static int env8_plan(void* object) {
  const auto self = static_cast<env8*>(object);
  self->rule = env8__chooseRule(self->r);
  if (self->rule == 0) return ZULG_ERR_SIZE;
  self->table = new_samples(self->step.arena, env8_table_bytes(self->r, self->sums));
  fill_table(self);
  return ZULG_OK;
}

static env8* env8___init__(void* memory, Arena* arena, int r, int n, int stride, int N,
                           envlambda* lambda) {
  const auto self = static_cast<env8*>(memory);
  const int M = N / r;
  *self = {.step = {env8___del__, sizeof *self, env8_plan, arena},
           .children = new_list(arena),
           .table = nullptr,
           .rule = 0,
           .r = r,
           .n = n,
           .stride = stride,
           .block = wrapping_product(2, r, stride),
           .sums = M / 2,
           .n_2 = n,
           .half = N / 2,
           .last = N - 1,
           .stride_2 = stride,
           .M = M,
           .lambda = lambda};
  return self;
}

// env7 and env9, which stand under one another

static env7* env7___init__(void* memory, Arena* arena, int N, int n, int in_stride, int out_stride);

// Both kinds of step that run T(N) have an env7 below them by rule 7.
static int plan_split(EnvList* children, EnvList* steps, Arena* arena, int N, int n, int in_stride,
                      int out_stride) {
  void* const memory = zulgArenaMalloc(arena, sizeof(env7));
  EnvList_add(children, env7___init__(memory, arena, N, n, in_stride, out_stride));
  EnvList_add(steps, EnvList_get(children, 0));
  return plan_first(steps);
}

static void env9___del__(void* object) {
  const auto self = static_cast<env9*>(object);
  if (self->rule >= 1 && self->rule <= 7) zulgArenaFree(self->step.arena, self->work, 0);
  free_list(self->steps);
  free_children(self->children);
}

static int env9_plan(void* object) {
  const auto self = static_cast<env9*>(object);
  self->rule = env9__chooseRule(self->M);
  self->work = nullptr;
  if (self->rule != 7) return ZULG_OK;
  return plan_split(self->children, self->steps, self->step.arena, self->M, self->n, self->inner_in,
                    self->inner_out);
}

static env9* env9___init__(void* memory, Arena* arena, int M, int n, int in_stride, int r,
                           int out_stride) {
  const auto self = static_cast<env9*>(memory);
  *self = {.step = {env9___del__, sizeof *self, env9_plan, arena},
           .children = new_list(arena),
           .steps = new_list(arena),
           .work = nullptr,
           .rule = 0,
           .M = M,
           .n = n,
           .n_2 = n,
           .inner_in = wrapping_product(r, in_stride),
           .in_stride = in_stride,
           .r = r,
           .n_3 = n,
           .inner_out = wrapping_product(r, out_stride),
           .out_stride = out_stride};
  return self;
}

static void env7___del__(void* object) {
  const auto self = static_cast<env7*>(object);
  if (self->rule == 1) zulgArenaFree(self->step.arena, self->work, samples_mem(self->n));
  free_list(self->first);
  free_list(self->second);
  free_children(self->children);
}

static int env7_plan(void* object) {
  const auto self = static_cast<env7*>(object);
  Arena* const arena = self->step.arena;
  self->rule = 1;
  if (divisorsIntNonTriv(&self->r, self->N / 2) != ZULG_OK) return ZULG_ERR_SIZE;

  void* memory = zulgArenaMalloc(arena, sizeof(env8));
  const auto lambda =
      envlambda___init__(zulgArenaMalloc(arena, sizeof(envlambda)), arena, self->N, self->r);
  EnvList_add(self->children, lambda);
  EnvList_add(self->children,
              env8___init__(memory, arena, self->r, self->n, self->out_stride, self->N, lambda));
  EnvList_add(self->first, memory);
  if (plan_first(self->first) != ZULG_OK) return ZULG_ERR_SIZE;

  memory = zulgArenaMalloc(arena, sizeof(env9));
  EnvList_add(self->children, env9___init__(memory, arena, self->N / self->r, self->n,
                                            self->in_stride, self->r, self->out_stride));
  EnvList_add(self->second, memory);
  if (plan_first(self->second) != ZULG_OK) return ZULG_ERR_SIZE;

  self->work = new_samples(arena, samples_mem(self->n));
  return ZULG_OK;
}

static env7* env7___init__(void* memory, Arena* arena, int N, int n, int in_stride,
                           int out_stride) {
  const auto self = static_cast<env7*>(memory);
  *self = {.step = {env7___del__, sizeof *self, env7_plan, arena},
           .children = new_list(arena),
           .first = new_list(arena),
           .second = new_list(arena),
           .work = nullptr,
           .rule = 0,
           .N = N,
           .r = 0,
           .n = n,
           .n_2 = n,
           .in_stride = in_stride,
           .n_3 = n,
           .out_stride = out_stride};
  return self;
}

// env5

static void env5___del__(void* object) {
  const auto self = static_cast<env5*>(object);
  if (self->rule >= 1 && self->rule <= 7) zulgArenaFree(self->step.arena, self->work, 0);
  free_list(self->steps);
  free_children(self->children);
}

static int env5_plan(void* object) {
  const auto self = static_cast<env5*>(object);
  self->rule = env5__chooseRule(self->N);
  self->work = nullptr;
  if (self->rule != 7) return ZULG_OK;
  return plan_split(self->children, self->steps, self->step.arena, self->N, self->n,
                    self->in_stride, self->out_stride);
}

static env5* env5___init__(void* memory, Arena* arena, int N, int d, int n) {
  const auto self = static_cast<env5*>(memory);
  *self = {.step = {env5___del__, sizeof *self, env5_plan, arena},
           .children = new_list(arena),
           .steps = new_list(arena),
           .work = nullptr,
           .rule = 0,
           .N = N,
           .n = n,
           .last = wrapping_sum(n, n, -1),
           .in_stride = 2 * d,
           .groups = d / L,
           .n_2 = n,
           .out_stride = d};
  return self;
}

// env4

static void env4___del__(void* object) {
  const auto self = static_cast<env4*>(object);
  if (self->rule >= 1 && self->rule <= 6) {
    zulgArenaFree(self->step.arena, self->table, env4_table_bytes(self->d, self->groups));
  }
  free_children(self->children);
}

static int env4_plan(void* object) {
  const auto self = static_cast<env4*>(object);
  self->rule = env4__chooseRule(self->d);
  if (self->rule == 0) return ZULG_ERR_SIZE;
  self->table = new_samples(self->step.arena, env4_table_bytes(self->d, self->groups));
  fill_table(self);
  return ZULG_OK;
}

static env4* env4___init__(void* memory, Arena* arena, int d, int groups, int n,
                           envfsplit* twiddle) {
  const auto self = static_cast<env4*>(memory);
  *self = {.step = {env4___del__, sizeof *self, env4_plan, arena},
           .children = new_list(arena),
           .table = nullptr,
           .rule = 0,
           .d = d,
           .n = n,
           .kernel = 2 * d,
           .block = 2 * d * L,
           .groups = groups,
           .n_2 = n,
           .last = wrapping_sum(n, n, -1),
           .N = n / d,
           .twiddle = twiddle};
  return self;
}

// env3 and env2, the halves of the root

static void env3___del__(void* object) {
  const auto self = static_cast<env3*>(object);
  if (self->rule == 1) zulgArenaFree(self->step.arena, self->work, 0);
  free_list(self->steps);
  free_children(self->children);
}

static int env3_plan(void* object) {
  const auto self = static_cast<env3*>(object);
  Arena* const arena = self->step.arena;
  self->rule = self->d % L == 0 ? 1 : 0;
  if (self->rule == 0) return ZULG_ERR_SIZE;
  void* const memory = zulgArenaMalloc(arena, sizeof(env5));
  EnvList_add(self->children, env5___init__(memory, arena, self->N, self->d, self->n));
  EnvList_add(self->steps, memory);
  if (plan_first(self->steps) != ZULG_OK) return ZULG_ERR_SIZE;
  self->work = nullptr;
  return ZULG_OK;
}

static env3* env3___init__(void* memory, Arena* arena, int d, int n) {
  const auto self = static_cast<env3*>(memory);
  *self = {.step = {env3___del__, sizeof *self, env3_plan, arena},
           .children = new_list(arena),
           .steps = new_list(arena),
           .work = nullptr,
           .rule = 0,
           .N = n / d,
           .n = n,
           .last = wrapping_sum(n, n, -1),
           .stride = 2 * d,
           .d = d,
           .n_2 = n,
           .d_2 = d};
  return self;
}

static void env2___del__(void* object) {
  const auto self = static_cast<env2*>(object);
  if (self->rule == 1) zulgArenaFree(self->step.arena, self->work, 0);
  free_list(self->steps);
  free_children(self->children);
}

static int env2_plan(void* object) {
  const auto self = static_cast<env2*>(object);
  Arena* const arena = self->step.arena;
  self->rule = self->m % L == 0 ? 1 : 0;
  if (self->rule == 0) return ZULG_ERR_SIZE;
  const int groups = self->m / L;
  void* const memory = zulgArenaMalloc(arena, sizeof(env4));
  const auto split = envfsplit___init__(zulgArenaMalloc(arena, sizeof(envfsplit)), arena, self->d,
                                        groups, self->twiddle);
  EnvList_add(self->children, split);
  EnvList_add(self->children, env4___init__(memory, arena, self->d, groups, self->n, split));
  EnvList_add(self->steps, memory);
  if (plan_first(self->steps) != ZULG_OK) return ZULG_ERR_SIZE;
  self->work = nullptr;
  return ZULG_OK;
}

static env2* env2___init__(void* memory, Arena* arena, int d, int n, envfCompose* twiddle) {
  const auto self = static_cast<env2*>(memory);
  *self = {.step = {env2___del__, sizeof *self, env2_plan, arena},
           .children = new_list(arena),
           .steps = new_list(arena),
           .work = nullptr,
           .rule = 0,
           .d = d,
           .n = n,
           .kernel = 2 * d,
           .m = n / (2 * d),
           .n_2 = n,
           .last = wrapping_sum(n, n, -1),
           .N = n / d,
           .twiddle = twiddle};
  return self;
}

// env1, the root

static void env1___del__(void* object) {
  const auto self = static_cast<env1*>(object);
  if (self->rule >= 1 && self->rule <= 6) {
    zulgArenaFree(self->step.arena, self->work, self->rule == 6 ? samples_mem(self->n) : 0);
  }
  free_list(self->stage2);
  free_list(self->stage1);
  free_children(self->children);
}

static int env1_plan(void* object) {
  const auto self = static_cast<env1*>(object);
  Arena* const arena = self->step.arena;
  self->rule = env1__chooseRule(self->n);
  self->work = nullptr;
  if (self->rule != 6) return ZULG_OK;
  if (divisorsIntNonTriv(&self->d, self->n / 2) != ZULG_OK) return ZULG_ERR_SIZE;
  const int d = self->d, n = self->n;

  void* memory = zulgArenaMalloc(arena, sizeof(env2));
  const auto compose =
      envfCompose___init__(zulgArenaMalloc(arena, sizeof(envfCompose)), arena, d, n / (2 * d), n);
  EnvList_add(self->children, compose);
  EnvList_add(self->children, env2___init__(memory, arena, d, n, compose));
  EnvList_add(self->stage2, memory);
  if (plan_first(self->stage2) != ZULG_OK) return ZULG_ERR_SIZE;

  memory = zulgArenaMalloc(arena, sizeof(env3));
  EnvList_add(self->children, env3___init__(memory, arena, d, n));
  EnvList_add(self->stage1, memory);
  if (plan_first(self->stage1) != ZULG_OK) return ZULG_ERR_SIZE;

  self->work = new_samples(arena, samples_mem(n));
  return ZULG_OK;
}

static env1* env1___init__(void* memory, Arena* arena, int n) {
  const auto self = static_cast<env1*>(memory);
  *self = {.step = {env1___del__, sizeof *self, env1_plan, arena},
           .children = new_list(arena),
           .stage2 = new_list(arena),
           .stage1 = new_list(arena),
           .work = nullptr,
           .rule = 0,
           .d = 0,
           .n = n};
  return self;
}

}  // namespace zulgen
