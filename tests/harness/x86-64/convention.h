// What 64-bit programs expect of a function.
#pragma once

namespace harness {

// What bare_call() finds changed, by the bits that it sets.
inline constexpr const char* kKept[] = {"rbx", "rbp", "r12",           "r13",
                                        "r14", "r15", "stack pointer", "MXCSR",
                                        "x87 stack"};
// How far the stack may be off a multiple of 16 at a call.
inline constexpr int kStackOffsets[] = {0};

}  // namespace harness
