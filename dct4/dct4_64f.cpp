// The DCT-IV of zulg64f samples.
#define DCT4_TYPE 64f
#include "dct4_64f.h"
#include "dct4/twiddles.h"

namespace zulgen::dct4_64f {

static constexpr auto& lambda_at = envlambda_at;

}  // namespace zulgen::dct4_64f

#include "dct4/entries.h"
