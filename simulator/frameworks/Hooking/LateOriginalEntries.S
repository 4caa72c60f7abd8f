# Entry points that find out where to go only when they are called. Each loads its number; the common part keeps
# every register that may carry an argument, asks for the implementation and jumps there, so that calls of any
# signature pass through untouched.
    .globl lateOriginalEntries
    .globl lateOriginalEntrySize

#if defined(__x86_64__)

    .text
    .balign 16
lateOriginalEntries:
    .set entry, 0
    .rept 256
    .balign 16
    movl $entry, %r11d
    jmp lateOriginalCommon
    .set entry, entry + 1
    .endr

lateOriginalCommon:
    .cfi_startproc
    pushq %rbp
    .cfi_def_cfa_offset 16
    .cfi_offset %rbp, -16
    movq %rsp, %rbp
    .cfi_def_cfa_register %rbp
    subq $192, %rsp
    movq %rdi, (%rsp)
    movq %rsi, 8(%rsp)
    movq %rdx, 16(%rsp)
    movq %rcx, 24(%rsp)
    movq %r8, 32(%rsp)
    movq %r9, 40(%rsp)
    movq %rax, 48(%rsp)
    movups %xmm0, 64(%rsp)
    movups %xmm1, 80(%rsp)
    movups %xmm2, 96(%rsp)
    movups %xmm3, 112(%rsp)
    movups %xmm4, 128(%rsp)
    movups %xmm5, 144(%rsp)
    movups %xmm6, 160(%rsp)
    movups %xmm7, 176(%rsp)
    movl %r11d, %edi
    call simulatorResolveLateOriginal@PLT
    movq %rax, %r11
    movq (%rsp), %rdi
    movq 8(%rsp), %rsi
    movq 16(%rsp), %rdx
    movq 24(%rsp), %rcx
    movq 32(%rsp), %r8
    movq 40(%rsp), %r9
    movq 48(%rsp), %rax
    movups 64(%rsp), %xmm0
    movups 80(%rsp), %xmm1
    movups 96(%rsp), %xmm2
    movups 112(%rsp), %xmm3
    movups 128(%rsp), %xmm4
    movups 144(%rsp), %xmm5
    movups 160(%rsp), %xmm6
    movups 176(%rsp), %xmm7
    leave
    .cfi_def_cfa %rsp, 8
    jmp *%r11
    .cfi_endproc

#elif defined(__aarch64__)

#include "device/aarch64_arguments.inc"

    .text
    .balign 16
lateOriginalEntries:
    .set entry, 0
    .rept 256
    .balign 16
    mov w17, #entry
    b lateOriginalCommon
    .set entry, entry + 1
    .endr

lateOriginalCommon:
    .cfi_startproc
    keepArguments
    mov w0, w17
    bl simulatorResolveLateOriginal
    mov x17, x0
    restoreArguments
    br x17
    .cfi_endproc

#else
#error "no entry points for this processor"
#endif

    .section .rodata
    .balign 8
lateOriginalEntrySize:
    .quad 16
    .section .note.GNU-stack, "", %progbits
