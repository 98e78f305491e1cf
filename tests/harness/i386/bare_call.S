# int bare_call(KernelFunction function, const void* source, void* destination, int flag,
#               int stack_offset, int* broken)
#
# Calls a kernel the way the plainest 32-bit caller may: with a stack that is `stack_offset` bytes
# off a multiple of 16 at the call. Writes to *broken what the kernel should have kept: bit 0 ebx,
# 1 esi, 2 edi, 3 ebp, 4 the stack pointer, 5 the SSE control word, 6 the empty x87 stack.

        .bss
        .align 4
kept_stack:     .zero 4
called_stack:   .zero 4
control_word:   .zero 4
environment:    .zero 28

        .text
        .globl bare_call
        .type bare_call, @function
bare_call:
        push %ebp
        push %ebx
        push %esi
        push %edi
        mov %esp, kept_stack
        stmxcsr control_word
        mov 20(%esp), %eax
        mov 24(%esp), %ecx
        mov 28(%esp), %edx
        mov 32(%esp), %ebx
        mov 36(%esp), %esi
        and $-16, %esp
        sub $16, %esp
        add %esi, %esp          # a multiple of 16, plus the offset
        push $0                 # the work buffer of those kernels that take one
        push %ebx
        push %edx
        push %ecx
        mov %esp, called_stack
        mov $0x11111111, %ebx
        mov $0x22222222, %esi
        mov $0x33333333, %edi
        mov $0x44444444, %ebp
        call *%eax
        xor %ecx, %ecx
        cmp $0x11111111, %ebx
        je 1f
        or $1, %ecx
1:      cmp $0x22222222, %esi
        je 1f
        or $2, %ecx
1:      cmp $0x33333333, %edi
        je 1f
        or $4, %ecx
1:      cmp $0x44444444, %ebp
        je 1f
        or $8, %ecx
1:      cmp %esp, called_stack
        je 1f
        or $16, %ecx
1:      mov kept_stack, %esp
        stmxcsr environment
        mov environment, %edx
        xor control_word, %edx
        and $0xffc0, %edx       # its settings; the low bits are the exceptions met so far
        jz 1f
        or $32, %ecx
        ldmxcsr control_word
1:      fnstenv environment
        cmpw $0xffff, environment + 8
        je 1f
        or $64, %ecx
        fninit
1:      mov 40(%esp), %edx
        mov %ecx, (%edx)
        cld
        pop %edi
        pop %esi
        pop %ebx
        pop %ebp
        ret
        .size bare_call, . - bare_call
        .section .note.GNU-stack, "", @progbits
