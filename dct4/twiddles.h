// Function objects: the angles of the tables, each formula written once.
#pragma once

#include <math.h>

#include "dct4/steps.h"

namespace zulgen::DCT4_NAMESPACE {

// Cosine and sine of pi x, by the functions of the sample's precision and each by a call of its
// own: these files are compiled so that no compiler puts the two together. (std::cos would undo
// that.) Pi x is rounded to the sample type first: that is the precision of a table.
static inline float cosine(float angle) { return cosf(angle); }
static inline float sine(float angle) { return sinf(angle); }
static inline double cosine(double angle) { return cos(angle); }
static inline double sine(double angle) { return sin(angle); }
static inline Sample times_pi(Sample x) {
  return static_cast<Sample>(static_cast<double>(x) * 0x1.921fb54442d18p+1);
}
static inline Sample DCT4_OF_TYPE(zulgCosPi_, )(Sample x) { return cosine(times_pi(x)); }
static inline Sample DCT4_OF_TYPE(zulgSinPi_, )(Sample x) { return sine(times_pi(x)); }
static constexpr auto& zulgCosPi = DCT4_OF_TYPE(zulgCosPi_, );
static constexpr auto& zulgSinPi = DCT4_OF_TYPE(zulgSinPi_, );

DCT4_FUNCTION(Sample, envfCompose_at, const void* object, int u, int v, int /*w*/) {
  const auto self = static_cast<const envfCompose*>(object);
  // Row a holds cosine and sine of pi (2 a + 1) (2 b + 1) / (4 n) for all b.
  const int index = wrapping_sum(wrapping_product(self->row_2, u), v), pair = index / 2;
  const int a = pair / self->d, b = pair % self->d;
  const int count = wrapping_product(2, 2 * a + 1, 2 * b + 1);
  const Sample x = static_cast<Sample>(count) / static_cast<Sample>(self->denominator);
  return index % 2 == 0 ? zulgCosPi(x) : zulgSinPi(x);
}

DCT4_FUNCTION(Sample, envfsplit_at, const void* object, int u, int v, int w) {
  const auto self = static_cast<const envfsplit*>(object);
  return envfCompose_at(self->compose, L * u + v, w, 0);
}

DCT4_FUNCTION(Sample, envlambda_at, const void* object, int i, int, int) {
  const auto self = static_cast<const envlambda*>(object);
  return (static_cast<Sample>(i) + Sample(0.5)) / static_cast<Sample>(self->N / self->r);
}

DCT4_FUNCTION(void, envfCompose___del__, void*) {}
DCT4_FUNCTION(void, envfsplit___del__, void*) {}
DCT4_FUNCTION(void, envlambda___del__, void*) {}

DCT4_FUNCTION(envfCompose*, envfCompose___init__, envfCompose* self, Arena* arena, int d, int m,
              int n) {
  *self = {.function = {{envfCompose___del__, sizeof *self}, envfCompose_at, arena},
           .row = 2 * d,
           .denominator = wrapping_product(8, n),
           .m = m,
           .d = d,
           .row_2 = 2 * d};
  return self;
}

DCT4_FUNCTION(envfsplit*, envfsplit___init__, envfsplit* self, Arena* arena, int d, int groups,
              envfCompose* compose) {
  *self = {.function = {{envfsplit___del__, sizeof *self}, envfsplit_at, arena},
           .row = 2 * d,
           .groups = groups,
           .compose = compose};
  return self;
}

DCT4_FUNCTION(envlambda*, envlambda___init__, envlambda* self, Arena* arena, int N, int r) {
  *self = {.function = {{envlambda___del__, sizeof *self}, envlambda_at, arena}, .N = N, .r = r};
  return self;
}

}  // namespace zulgen::DCT4_NAMESPACE
