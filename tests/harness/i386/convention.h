// What 32-bit programs expect of a function.
#pragma once

namespace harness {

// What bare_call() finds changed, by the bits that it sets.
inline constexpr const char* kKept[] = {"ebx",           "esi",       "edi",      "ebp",
                                        "stack pointer", "MXCSR",     "x87 stack"};
// How far the stack may be off a multiple of 16 at a call: old callers align it on 4.
inline constexpr int kStackOffsets[] = {0, 4, 8, 12};

}  // namespace harness
