// Building a plan and taking it down.
//
// A step is constructed, then planned: `plan` fixes the rule, fills the table and builds the steps
// below. A step that fails returns at once and leaves what it has built: every child is in
// `children` before it is planned, so the root's destructor reaches all of it. Destructors go by
// the rule, not by what was allocated, and leave the object's own memory to its owner.
#pragma once

#include "dct4/sizes.h"
#include "dct4/twiddles.h"

namespace zulgen::DCT4_NAMESPACE {

template <class Object>
static Object* new_object(Arena* arena) {
  return static_cast<Object*>(zulgArenaMalloc(arena, sizeof(Object)));
}

static EnvList* new_list(Arena* arena) {
  return EnvList___init__(new_object<EnvList>(arena), arena);
}

static void free_list(EnvList* list) {
  EnvList___del__(list);
  zulgArenaFree(list->arena, list, sizeof(EnvList));
}

static void free_children(EnvList* list) {
  EnvList_freeChildren(list);
  free_list(list);
}

static Sample* new_samples(Arena* arena, int bytes) {
  return static_cast<Sample*>(zulgArenaMalloc(arena, bytes));
}

// Makes a step that is constructed the next of the children and the only one of a list, and plans
// it.
static int plan_child(EnvList* children, EnvList* list, void* child) {
  EnvList_add(children, child);
  EnvList_add(list, child);
  const auto step = first_in<Step>(list);
  return step->plan(step);
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
    const Sample lambda = lambda_at(self->lambda, kappa, 0, 0);
    for (int k = 1; k < size; ++k) {
      table = put_pair(table, lambda * (static_cast<Sample>(2 * k) / static_cast<Sample>(size)));
    }
  }
  return table;
}

// Those of the second layer of one of `4 * count` values.
static Sample* put_across(Sample* table, const env8* self, int count) {
  for (int kappa = 0; kappa < self->sums; ++kappa) {
    const Sample lambda = lambda_at(self->lambda, kappa, 0, 0);
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

DCT4_FUNCTION(void, env8___del__, void* object) {
  const auto self = static_cast<env8*>(object);
  if (self->rule >= 1 && self->rule <= 5) {
    zulgArenaFree(self->step.arena, self->table, env8_table_bytes(self->r, self->sums));
  }
  free_children(self->children);
}

DCT4_FUNCTION(int, env8_plan, void* object) {
  const auto self = static_cast<env8*>(object);
  self->rule = env8__chooseRule(self->r);
  if (self->rule == 0) return ZULG_ERR_SIZE;
  self->table = new_samples(self->step.arena, env8_table_bytes(self->r, self->sums));
  fill_table(self);
  return ZULG_OK;
}

DCT4_FUNCTION(env8*, env8___init__, env8* self, Arena* arena, int r, int n, int stride, int N,
              envlambda* lambda) {
  *self = {.step = {{env8___del__, sizeof *self}, env8_plan, arena},
           .children = new_list(arena),
           .r = r,
           .n = n,
           .stride = stride,
           .block = wrapping_product(2, r, stride),
           .sums = N / r / 2,
           .n_2 = n,
           .half = N / 2,
           .last = N - 1,
           .stride_2 = stride,
           .M = N / r,
           .lambda = lambda};
  return self;
}

// What has children and a list of them, and no memory of its own.
template <class Object>
static void free_lists(void* object) {
  const auto self = static_cast<Object*>(object);
  free_list(self->steps);
  free_children(self->children);
}

// env7 and env9, which stand under one another

DCT4_DECLARE(env7*, env7___init__, env7* self, Arena* arena, int N, int n, int in_stride,
             int out_stride);

DCT4_FUNCTION(void, env9___del__, void* object) { free_lists<env9>(object); }

DCT4_FUNCTION(int, env9_plan, void* object) {
  const auto self = static_cast<env9*>(object);
  Arena* const arena = self->step.arena;
  self->rule = env9__chooseRule(self->M);
  if (self->rule != 7) return ZULG_OK;
  return plan_child(self->children, self->steps,
                    env7___init__(new_object<env7>(arena), arena, self->M, self->n, self->inner_in,
                                  self->inner_out));
}

DCT4_FUNCTION(env9*, env9___init__, env9* self, Arena* arena, int M, int n, int in_stride, int r,
              int out_stride) {
  *self = {.step = {{env9___del__, sizeof *self}, env9_plan, arena},
           .children = new_list(arena),
           .steps = new_list(arena),
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

DCT4_FUNCTION(void, env7___del__, void* object) {
  const auto self = static_cast<env7*>(object);
  if (self->rule == 1) zulgArenaFree(self->step.arena, self->work, samples_mem(self->n));
  free_list(self->first);
  free_list(self->second);
  free_children(self->children);
}

DCT4_FUNCTION(int, env7_plan, void* object) {
  const auto self = static_cast<env7*>(object);
  Arena* const arena = self->step.arena;
  const int N = self->N, n = self->n, in_stride = self->in_stride, out_stride = self->out_stride;
  self->rule = 1;
  if (const int error = divisorsIntNonTriv(&self->r, N / 2)) return error;
  const int r = self->r;

  const auto sums = new_object<env8>(arena);
  const auto lambda = envlambda___init__(new_object<envlambda>(arena), arena, N, r);
  EnvList_add(self->children, lambda);
  int error = plan_child(self->children, self->first,
                         env8___init__(sums, arena, r, n, out_stride, N, lambda));
  if (error) return error;

  const auto parts = new_object<env9>(arena);
  error = plan_child(self->children, self->second,
                     env9___init__(parts, arena, N / r, n, in_stride, r, out_stride));
  if (error) return error;

  self->work = new_samples(arena, samples_mem(n));
  return ZULG_OK;
}

DCT4_DEFINE(env7*, env7___init__, env7* self, Arena* arena, int N, int n, int in_stride,
            int out_stride) {
  *self = {.step = {{env7___del__, sizeof *self}, env7_plan, arena},
           .children = new_list(arena),
           .first = new_list(arena),
           .second = new_list(arena),
           .N = N,
           .n = n,
           .n_2 = n,
           .in_stride = in_stride,
           .n_3 = n,
           .out_stride = out_stride};
  return self;
}

// env5

DCT4_FUNCTION(void, env5___del__, void* object) { free_lists<env5>(object); }

DCT4_FUNCTION(int, env5_plan, void* object) {
  const auto self = static_cast<env5*>(object);
  Arena* const arena = self->step.arena;
  self->rule = env5__chooseRule(self->N);
  if (self->rule != 7) return ZULG_OK;
  return plan_child(self->children, self->steps,
                    env7___init__(new_object<env7>(arena), arena, self->N, self->n, self->in_stride,
                                  self->out_stride));
}

DCT4_FUNCTION(env5*, env5___init__, env5* self, Arena* arena, int N, int d, int n) {
  *self = {.step = {{env5___del__, sizeof *self}, env5_plan, arena},
           .children = new_list(arena),
           .steps = new_list(arena),
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

DCT4_FUNCTION(void, env4___del__, void* object) {
  const auto self = static_cast<env4*>(object);
  if (self->rule >= 1 && self->rule <= 6) {
    zulgArenaFree(self->step.arena, self->table, env4_table_bytes(self->d, self->groups));
  }
  free_children(self->children);
}

DCT4_FUNCTION(int, env4_plan, void* object) {
  const auto self = static_cast<env4*>(object);
  self->rule = env4__chooseRule(self->d);
  if (self->rule == 0) return ZULG_ERR_SIZE;
  self->table = new_samples(self->step.arena, env4_table_bytes(self->d, self->groups));
  fill_table(self);
  return ZULG_OK;
}

DCT4_FUNCTION(env4*, env4___init__, env4* self, Arena* arena, int d, int groups, int n,
              envfsplit* twiddle) {
  *self = {.step = {{env4___del__, sizeof *self}, env4_plan, arena},
           .children = new_list(arena),
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

DCT4_FUNCTION(void, env3___del__, void* object) { free_lists<env3>(object); }

DCT4_FUNCTION(int, env3_plan, void* object) {
  const auto self = static_cast<env3*>(object);
  Arena* const arena = self->step.arena;
  self->rule = self->d % L == 0 ? 1 : 0;
  if (self->rule == 0) return ZULG_ERR_SIZE;
  return plan_child(self->children, self->steps,
                    env5___init__(new_object<env5>(arena), arena, self->N, self->d, self->n));
}

DCT4_FUNCTION(env3*, env3___init__, env3* self, Arena* arena, int d, int n) {
  *self = {.step = {{env3___del__, sizeof *self}, env3_plan, arena},
           .children = new_list(arena),
           .steps = new_list(arena),
           .N = n / d,
           .n = n,
           .last = wrapping_sum(n, n, -1),
           .stride = 2 * d,
           .d = d,
           .n_2 = n,
           .d_2 = d};
  return self;
}

DCT4_FUNCTION(void, env2___del__, void* object) { free_lists<env2>(object); }

DCT4_FUNCTION(int, env2_plan, void* object) {
  const auto self = static_cast<env2*>(object);
  Arena* const arena = self->step.arena;
  self->rule = self->m % L == 0 ? 1 : 0;
  if (self->rule == 0) return ZULG_ERR_SIZE;
  const int d = self->d, groups = self->m / L;
  const auto leaf = new_object<env4>(arena);
  const auto split =
      envfsplit___init__(new_object<envfsplit>(arena), arena, d, groups, self->twiddle);
  EnvList_add(self->children, split);
  return plan_child(self->children, self->steps,
                    env4___init__(leaf, arena, d, groups, self->n, split));
}

DCT4_FUNCTION(env2*, env2___init__, env2* self, Arena* arena, int d, int n, envfCompose* twiddle) {
  *self = {.step = {{env2___del__, sizeof *self}, env2_plan, arena},
           .children = new_list(arena),
           .steps = new_list(arena),
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

DCT4_FUNCTION(void, env1___del__, void* object) {
  const auto self = static_cast<env1*>(object);
  if (self->rule == 6) zulgArenaFree(self->step.arena, self->work, samples_mem(self->n));
  free_list(self->stage2);
  free_list(self->stage1);
  free_children(self->children);
}

DCT4_FUNCTION(int, env1_plan, void* object) {
  const auto self = static_cast<env1*>(object);
  Arena* const arena = self->step.arena;
  const int n = self->n;
  self->rule = env1__chooseRule(n);
  if (self->rule != 6) return ZULG_OK;
  int error = divisorsIntNonTriv(&self->d, n / 2);
  if (error) return error;
  const int d = self->d;

  const auto second = new_object<env2>(arena);
  const auto compose =
      envfCompose___init__(new_object<envfCompose>(arena), arena, d, n / (2 * d), n);
  EnvList_add(self->children, compose);
  error = plan_child(self->children, self->stage2, env2___init__(second, arena, d, n, compose));
  if (error) return error;

  const auto first = new_object<env3>(arena);
  error = plan_child(self->children, self->stage1, env3___init__(first, arena, d, n));
  if (error) return error;

  self->work = new_samples(arena, samples_mem(n));
  return ZULG_OK;
}

DCT4_FUNCTION(env1*, env1___init__, env1* self, Arena* arena, int n) {
  *self = {.step = {{env1___del__, sizeof *self}, env1_plan, arena},
           .children = new_list(arena),
           .stage2 = new_list(arena),
           .stage1 = new_list(arena),
           .n = n};
  return self;
}

}  // namespace zulgen::DCT4_NAMESPACE
