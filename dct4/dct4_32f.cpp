// The DCT-IV of zulg32f samples.
#include <math.h>

#include "dct4/arena.h"
#include "dct4/lanes.h"
#include "dct4/splits.h"
#include "zulcore.h"
#include "zulgen.h"

#define FAMILY(name) owngDCT4_32fw7_##name
#define zulgCosPi zulgCosPi_32f
#define zulgSinPi zulgSinPi_32f
#define zulgDCT4GetSize zulgDCT4GetSize_32f
#define zulgDCT4Init zulgDCT4Init_32f
#define zulgDCT4InitAlloc zulgDCT4InitAlloc_32f
#define zulgDCT4Free zulgDCT4Free_32f
#define zulgDCT4 zulgDCT4_32f
#define call_at owng_TFunc_IIIR_at
#include "dct4/names.h"

namespace zulgen {

using Sample = zulg32f;
constexpr int L = LanesOf<Sample>::kCount;
using Spec = zulgDCT4Spec_32f;

static inline Sample cosine(Sample x) { return cosf(x); }
static inline Sample sine(Sample x) { return sinf(x); }

// Which part of an env8's table for two layers comes first.
constexpr bool is_within_first(int /*r*/) { return false; }

// The length from which on results are written a cache line at a time, as measured faster.
constexpr int kLinesFrom = 16384;

}  // namespace zulgen

// The generated kernels.
#include "dct4_32f.h"

#include "dct4/entries.h"
