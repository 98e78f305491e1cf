// The DCT-IV of zulg64f samples.
#include <math.h>

#include "dct4/arena.h"
#include "dct4/lanes.h"
#include "dct4/splits.h"
#include "zulcore.h"
#include "zulgen.h"

#define FAMILY(name) owngDCT4_64fw7_##name
#define zulgCosPi zulgCosPi_64f
#define zulgSinPi zulgSinPi_64f
#define zulgDCT4GetSize zulgDCT4GetSize_64f
#define zulgDCT4Init zulgDCT4Init_64f
#define zulgDCT4InitAlloc zulgDCT4InitAlloc_64f
#define zulgDCT4Free zulgDCT4Free_64f
#define zulgDCT4 zulgDCT4_64f
#include "dct4/names.h"

namespace zulgen {

using Sample = zulg64f;
constexpr int L = LanesOf<Sample>::kCount;
using Spec = zulgDCT4Spec_64f;

static inline Sample cosine(Sample x) { return cos(x); }
static inline Sample sine(Sample x) { return sin(x); }

// Which part of an env8's table for two layers comes first.
constexpr bool is_within_first(int r) { return r == 32; }

// The length from which on results are written a cache line at a time, as measured faster.
constexpr int kLinesFrom = 8192;

}  // namespace zulgen

// The generated kernels.
#include "dct4_64f.h"

#include "dct4/entries.h"
