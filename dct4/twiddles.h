// Function objects: the angles of the tables, each formula written once.
#pragma once

#include <math.h>

#include "dct4/steps.h"

namespace zulgen {

// Pi x is rounded to the sample type before its cosine is taken: that is the precision of a table.
static inline Sample zulgCosPi(Sample x) {
  return cosine(static_cast<Sample>(static_cast<double>(x) * 0x1.921fb54442d18p+1));
}
static inline Sample zulgSinPi(Sample x) {
  return sine(static_cast<Sample>(static_cast<double>(x) * 0x1.921fb54442d18p+1));
}

static Sample envfCompose_at(const void* object, int u, int v, int /*w*/) {
  const auto self = static_cast<const envfCompose*>(object);
  // Row a holds cosine and sine of pi (2 a + 1) (2 b + 1) / (4 n) for all b.
  const int index = wrapping_sum(wrapping_product(self->row_2, u), v), pair = index / 2;
  const int a = pair / self->d, b = pair % self->d;
  const int count = wrapping_product(2, 2 * a + 1, 2 * b + 1);
  const Sample x = static_cast<Sample>(count) / static_cast<Sample>(self->denominator);
  return index % 2 == 0 ? zulgCosPi(x) : zulgSinPi(x);
}

static Sample envfsplit_at(const void* object, int u, int v, int w) {
  const auto self = static_cast<const envfsplit*>(object);
  return envfCompose_at(self->compose, L * u + v, w, 0);
}

static Sample envlambda_at(const void* object, int i, int, int) {
  const auto self = static_cast<const envlambda*>(object);
  return (static_cast<Sample>(i) + Sample(0.5)) / static_cast<Sample>(self->N / self->r);
}

// The operation of a function object that is known by its header alone.
static inline Sample call_at(const void* object, int u, int v, int w) {
  return static_cast<const Function*>(object)->at(object, u, v, w);
}

static void envfCompose___del__(void*) {}
static void envfsplit___del__(void*) {}
static void envlambda___del__(void*) {}

static envfCompose* envfCompose___init__(void* memory, Arena* arena, int d, int m, int n) {
  const auto self = static_cast<envfCompose*>(memory);
  *self = {{envfCompose___del__, sizeof *self, envfCompose_at, arena},
           2 * d,
           wrapping_product(8, n),
           m,
           d,
           2 * d};
  return self;
}

static envfsplit* envfsplit___init__(void* memory, Arena* arena, int d, int groups,
                                     envfCompose* compose) {
  const auto self = static_cast<envfsplit*>(memory);
  *self = {{envfsplit___del__, sizeof *self, envfsplit_at, arena}, 2 * d, groups, compose};
  return self;
}

static envlambda* envlambda___init__(void* memory, Arena* arena, int N, int r) {
  const auto self = static_cast<envlambda*>(memory);
  *self = {{envlambda___del__, sizeof *self, envlambda_at, arena}, N, r};
  return self;
}

}  // namespace zulgen
