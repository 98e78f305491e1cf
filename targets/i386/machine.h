// What the calling convention of 32-bit programs means for a kernel.
#pragma once

#include "frame/two_bodies.h"

// A function that doesn't rely on the alignment of the stack, which old callers align on 4 bytes
// where newer ones, and compilers of callees, take 16 for granted.
#define ZULGEN_ALIGNS_STACK , force_align_arg_pointer

// Whether the first body of a kernel serves: both arrays are aligned on 16 bytes, and so is the
// stack. Aligning the stack costs as much as the arithmetic of a short transform, so only the
// second body does it. The address of the first argument is where the stack pointer was before the
// call.
#define ZULGEN_IS_ALIGNED(source, destination) \
  ::zulgen::is_aligned(source, destination, ::zulgen::address_as_found(&source))

namespace zulgen {

// Hides from the compiler that the address is one it takes to be aligned.
inline const void* address_as_found(const void* address) {
  asm("" : "+r"(address));
  return address;
}

}  // namespace zulgen
