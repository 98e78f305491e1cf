#include "frame/kernel.h"

// `version` and `build` are two independent statements of the record.
static const zulgLibVersion kVersion = {
    6, 1, 137, 336, "s8", "libzulgens8.so.6.1", "6.1 build 137.56", "Mar 17 2010",
};

ZULGEN_EXPORT const zulgLibVersion* zulgenGetLibVersion(void) { return &kVersion; }
