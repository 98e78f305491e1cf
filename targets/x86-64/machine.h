// What the calling convention of 64-bit programs means for a kernel: callers align the stack.
#pragma once

#include "frame/two_bodies.h"

#define ZULGEN_ALIGNS_STACK

// Whether the first body of a kernel serves: both arrays are aligned on 16 bytes.
#define ZULGEN_IS_ALIGNED(source, destination) ::zulgen::is_aligned(source, destination)
