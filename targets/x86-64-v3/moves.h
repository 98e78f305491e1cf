// Lane moves of processors with AVX2.
#pragma once

#include <immintrin.h>

namespace zulgen {

// The low half of `low` and the high half of `high`.
inline __m128d join_halves(__m128d low, __m128d high) { return _mm_blend_pd(high, low, 1); }

}  // namespace zulgen
