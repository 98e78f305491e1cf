# Broken kernels: one that changes a register of the caller's, one that takes an aligned stack for
# granted.
        .text
        .globl clobbers_register
clobbers_register:
        push 16(%esp)
        push 16(%esp)
        push 16(%esp)
        push 16(%esp)
        call call_good
        add $16, %esp
        mov $7, %esi
        ret
        .globl wants_aligned_stack
wants_aligned_stack:
        movaps 4(%esp), %xmm0
        jmp call_good
        .section .note.GNU-stack, "", @progbits
