// objc_msgSend as the phone's library calls it: the arguments stay where the caller put them while the implementation
// is looked up, then that takes over as if it had been called directly. A message to nil gives zero, whether the
// caller looks for an integer, a pointer, a floating-point number or a structure of up to four of them.

#include "device/aarch64_arguments.inc"

    .text
    .globl  objc_msgSend
    .type   objc_msgSend, %function
    .p2align 2
objc_msgSend:
    .cfi_startproc
    cbz     x0, .Lnil
    keepArguments
    bl      objc_msgLookup
    mov     x16, x0
    restoreArguments
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
