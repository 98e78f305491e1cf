// The DCT-IV of zulg32f samples.
#define DCT4_TYPE 32f
#include "dct4_32f.h"
#include "dct4/twiddles.h"

namespace zulgen::dct4_32f {

// A function object that is known by its header alone.
static Sample owng_TFunc_IIIR_at(const void* object, int u, int v, int w) {
  return static_cast<const Function*>(object)->at(object, u, v, w);
}
static constexpr auto& lambda_at = owng_TFunc_IIIR_at;

}  // namespace zulgen::dct4_32f

#include "dct4/entries.h"
