// objc_msgSend as the phone's library calls it: the arguments stay where the caller put them while the implementation
// is looked up, then that takes over as if it had been called directly. A message to nil gives zero, whether the
// caller looks for an integer, a pointer, a floating-point number or a structure of up to four of them.

    .text
    .globl  objc_msgSend
    .type   objc_msgSend, %function
    .p2align 2
objc_msgSend:
    .cfi_startproc
    cbz     x0, .Lnil
    stp     x29, x30, [sp, #-224]!
    .cfi_def_cfa_offset 224
    .cfi_offset x29, -224
    .cfi_offset x30, -216
    mov     x29, sp
    stp     x0, x1, [sp, #16]
    stp     x2, x3, [sp, #32]
    stp     x4, x5, [sp, #48]
    stp     x6, x7, [sp, #64]
    str     x8, [sp, #80]
    stp     q0, q1, [sp, #96]
    stp     q2, q3, [sp, #128]
    stp     q4, q5, [sp, #160]
    stp     q6, q7, [sp, #192]
    bl      objc_msgLookup
    mov     x16, x0
    ldp     x0, x1, [sp, #16]
    ldp     x2, x3, [sp, #32]
    ldp     x4, x5, [sp, #48]
    ldp     x6, x7, [sp, #64]
    ldr     x8, [sp, #80]
    ldp     q0, q1, [sp, #96]
    ldp     q2, q3, [sp, #128]
    ldp     q4, q5, [sp, #160]
    ldp     q6, q7, [sp, #192]
    ldp     x29, x30, [sp], #224
    .cfi_def_cfa_offset 0
    .cfi_restore x29
    .cfi_restore x30
    br      x16
.Lnil:
    mov     x1, #0
    movi    d0, #0
    movi    d1, #0
    movi    d2, #0
    movi    d3, #0
    ret
    .cfi_endproc
    .size   objc_msgSend, .-objc_msgSend

    .section .note.GNU-stack,"",%progbits
