# The signature table as part of the binary, so that a host needs no file of the project at run time.
    .section .rodata
    .globl signatureTableBytes
    .globl signatureTableEnd
signatureTableBytes:
    .incbin "platform-signatures.tsv"
signatureTableEnd:
    .byte 0
    .section .note.GNU-stack, "", %progbits
