// What the generated dispatch entries stand on. An entry and its table are assembly, for two
// reasons.
//
// The table holds offsets from the global offset table. Addresses would have to be written by the
// loader, into pages that then are shared by nobody; offsets are constants, but C++ can't say them.
//
// The entry jumps to the kernel with the caller's arguments as they lie on the stack, except that
// the flag and what follows it close up over the length. So the kernel sees the alignment of the
// caller's stack, and returns to the caller. Compilers load and store all the arguments for that:
// 4.8 cycles instead of 1.9.
#pragma once

#include "frame/kernel.h"

// Leaves its return address in ecx, by which position-independent code finds itself.
asm(R"(
        .section .text.zulgen_return_address, "ax", @progbits
        .type   zulgen_return_address, @function
zulgen_return_address:
        movl    (%esp), %ecx
        ret
        .size   zulgen_return_address, . - zulgen_return_address
        .previous
)");

static_assert(ZULG_ERR_SIZE == -6, "what an entry returns by itself");
