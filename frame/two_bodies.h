// Kernels of vectors for processors that prefer aligned ones: a body for arrays that are aligned, and
// one for all others.
#pragma once

// The second body: a function of its own that the exported one jumps to. It doesn't rely on the
// alignment of anything, the stack included.
#define ZULGEN_TWIN extern "C" __attribute__((visibility("hidden"), noinline ZULGEN_ALIGNS_STACK))

#define ZULGEN_VECTOR_KERNEL(name, arguments, pass)                                     \
  ZULGEN_TWIN zulgResult owng##name##_unaligned arguments { return name<Unaligned> pass; } \
  ZULGEN_EXPORT zulgResult zulg##name arguments {                                       \
    if (!ZULGEN_IS_ALIGNED(source, destination)) return owng##name##_unaligned pass;    \
    return name<Aligned> pass;                                                          \
  }                                                                                     \
  ZULGEN_HIDDEN_NAME(zulg##name) zulgResult owng##name arguments;

#define ZULGEN_SHORT_VECTOR_KERNEL(name, arguments, pass)                          \
  ZULGEN_EXPORT zulgResult zulg##name arguments {                                  \
    if (!::zulgen::is_aligned(source, destination)) return name<Unaligned> pass;   \
    return name<Aligned> pass;                                                     \
  }                                                                                \
  ZULGEN_HIDDEN_NAME(zulg##name) zulgResult owng##name arguments;
