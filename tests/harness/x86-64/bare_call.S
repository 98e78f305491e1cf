# int bare_call(KernelFunction function, const void* source, void* destination, int flag,
#               int stack_offset, int* broken)
#
# Calls a kernel with marks in all registers that belong to the caller; stack_offset is always 0.
# Writes to *broken what the kernel should have kept: bit 0 rbx, 1 rbp, 2 to 5 r12 to r15, 6 the stack
# pointer, 7 the SSE control word, 8 the empty x87 stack.

        .bss
        .align 8
kept_stack:     .zero 8
called_stack:   .zero 8
control_word:   .zero 4
environment:    .zero 28

        .text
        .globl bare_call
        .type bare_call, @function
bare_call:
        push %rbp
        push %rbx
        push %r12
        push %r13
        push %r14
        push %r15
        push %r9
        mov %rsp, kept_stack(%rip)
        stmxcsr control_word(%rip)
        mov %rdi, %rax
        mov %rsi, %rdi
        mov %rdx, %rsi
        mov %ecx, %edx
        xor %ecx, %ecx          # the work buffer of those kernels that take one
        and $-16, %rsp
        mov %rsp, called_stack(%rip)
        mov $0x1111111111111111, %rbx
        mov $0x2222222222222222, %rbp
        mov $0x3333333333333333, %r12
        mov $0x4444444444444444, %r13
        mov $0x5555555555555555, %r14
        mov $0x6666666666666666, %r15
        call *%rax
        xor %ecx, %ecx
        mov %rsp, %r9
        mov kept_stack(%rip), %rsp
        .macro expect_kept register, mark, bit
        mov $\mark, %rdx
        cmp %rdx, \register
        je 1f
        or $\bit, %ecx
1:
        .endm
        expect_kept %rbx, 0x1111111111111111, 1
        expect_kept %rbp, 0x2222222222222222, 2
        expect_kept %r12, 0x3333333333333333, 4
        expect_kept %r13, 0x4444444444444444, 8
        expect_kept %r14, 0x5555555555555555, 16
        expect_kept %r15, 0x6666666666666666, 32
        cmp %r9, called_stack(%rip)
        je 1f
        or $64, %ecx
1:      stmxcsr environment(%rip)
        mov environment(%rip), %edx
        xor control_word(%rip), %edx
        and $0xffc0, %edx       # its settings; the low bits are the exceptions met so far
        jz 1f
        or $128, %ecx
        ldmxcsr control_word(%rip)
1:      fnstenv environment(%rip)
        cmpw $0xffff, environment + 8(%rip)
        je 1f
        or $256, %ecx
        fninit
1:      pop %r9
        mov %ecx, (%r9)
        cld
        pop %r15
        pop %r14
        pop %r13
        pop %r12
        pop %rbx
        pop %rbp
        ret
        .size bare_call, . - bare_call
        .section .note.GNU-stack, "", @progbits
