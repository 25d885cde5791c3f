# One call with every register and slot filled from `call` (calls.c has its layout), and all of them put down after it.
# The caller's own registers are kept whatever the function does to them. The address after the call is known to those
# who look for it on the stack.
        .set xmm_in, 0
        .set gpr_in, 256
        .set slots, 384
        .set target, 448
        .set stack, 456
        .set trap, 464
        .set own_stack, 472
        .set xmm_out, 480
        .set gpr_out, 736
        .set mxcsr_out, 864
        .set x87_out, 868
        .set mxcsr_in, 896
        .set x87_in, 900
        .set own_x87, 902

        .text
        .globl  make_call, after_call
make_call:
        pushq   %rbx
        pushq   %rbp
        pushq   %rsi
        pushq   %rdi
        pushq   %r12
        pushq   %r13
        pushq   %r14
        pushq   %r15
        subq    $168, %rsp
        .irp    n, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15
        movups  %xmm\n, 16*(\n-6)(%rsp)
        .endr
        movq    %rsp, call+own_stack(%rip)
        movq    call+stack(%rip), %rsp
        .irp    n, 0, 1, 2, 3, 4, 5, 6, 7
        movq    call+slots+8*\n(%rip), %rax
        movq    %rax, 8*\n(%rsp)
        .endr
        .irp    n, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15
        movups  call+xmm_in+16*\n(%rip), %xmm\n
        .endr
        fnclex
        fnstcw  call+own_x87(%rip)
        fldcw   call+x87_in(%rip)
        ldmxcsr call+mxcsr_in(%rip)
        cmpq    $0, call+trap(%rip)
        je      1f
        pushfq
        orq     $0x100, (%rsp)
        popfq
1:
        movq    call+gpr_in+0(%rip), %rax
        movq    call+gpr_in+8(%rip), %rcx
        movq    call+gpr_in+16(%rip), %rdx
        movq    call+gpr_in+24(%rip), %rbx
        movq    call+gpr_in+40(%rip), %rbp
        movq    call+gpr_in+48(%rip), %rsi
        movq    call+gpr_in+56(%rip), %rdi
        .irp    n, 8, 9, 10, 11, 12, 13, 14, 15
        movq    call+gpr_in+8*\n(%rip), %r\n
        .endr
        callq   *call+target(%rip)
after_call:
        movq    %rax, call+gpr_out+0(%rip)
        movq    %rcx, call+gpr_out+8(%rip)
        movq    %rdx, call+gpr_out+16(%rip)
        movq    %rbx, call+gpr_out+24(%rip)
        movq    %rsp, call+gpr_out+32(%rip)
        movq    %rbp, call+gpr_out+40(%rip)
        movq    %rsi, call+gpr_out+48(%rip)
        movq    %rdi, call+gpr_out+56(%rip)
        .irp    n, 8, 9, 10, 11, 12, 13, 14, 15
        movq    %r\n, call+gpr_out+8*\n(%rip)
        .endr
        .irp    n, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15
        movups  %xmm\n, call+xmm_out+16*\n(%rip)
        .endr
        stmxcsr call+mxcsr_out(%rip)
        fnstenv call+x87_out(%rip)
        fldenv  call+x87_out(%rip)
        fldcw   call+own_x87(%rip)
        movq    call+own_stack(%rip), %rsp
        pushfq
        andq    $~0x100, (%rsp)
        popfq
        cld
        .irp    n, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15
        movups  16*(\n-6)(%rsp), %xmm\n
        .endr
        addq    $168, %rsp
        popq    %r15
        popq    %r14
        popq    %r13
        popq    %r12
        popq    %rdi
        popq    %rsi
        popq    %rbp
        popq    %rbx
        ret
