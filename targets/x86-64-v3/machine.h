// What processors with AVX2 mean for a kernel: they read vectors from any address, and those that are
// aligned without a loss. One body serves all arrays.
#pragma once

#define ZULGEN_VECTOR_KERNEL(name, arguments, pass)                             \
  ZULGEN_EXPORT zulgResult zulg##name arguments { return name<Unaligned> pass; } \
  ZULGEN_HIDDEN_NAME(zulg##name) zulgResult owng##name arguments;

#define ZULGEN_SHORT_VECTOR_KERNEL ZULGEN_VECTOR_KERNEL
