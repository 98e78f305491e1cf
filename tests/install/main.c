/* Uses both installed libraries through their C headers. */
#include <stdio.h>
#include <string.h>
#include <zulcore.h>
#include <zulgen.h>

int main(void) {
  const zulg32f ramp[4] = {1, 2, 3, 4}, wanted[4] = {10, -2, -2, 2};
  zulg32f* spectrum = (zulg32f*)zulMalloc(sizeof wanted);
  int failed = strcmp(zulgenGetLibVersion()->name, "libzulgens8.so.6.1") != 0;
  failed |=
      spectrum == NULL || zulgDFTFwd_RToPerm_32f(ramp, spectrum, 4, ZULG_SCALE_NONE) != ZULG_OK;
  failed |= failed || memcmp(spectrum, wanted, sizeof wanted) != 0;
  zulFree(spectrum);
  puts(failed ? "wrong" : "right");
  return failed;
}
