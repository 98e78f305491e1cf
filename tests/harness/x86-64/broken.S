# Broken kernels: one that changes a register of the caller's, one that takes an aligned stack for
# granted.
        .text
        .globl clobbers_register
clobbers_register:
        sub $8, %rsp
        call call_good
        add $8, %rsp
        mov $7, %rbx
        ret
        .globl wants_aligned_stack
wants_aligned_stack:
        movaps 8(%rsp), %xmm0
        jmp call_good
        .section .note.GNU-stack, "", @progbits
