// Assembly for arm64.
#include "device/emulation/calls.hpp"

#include <array>

// The method is looked up with all registers of arguments saved; then it takes the call's place.
asm(R"(
    .text
    .globl emulation_msgSend
    .hidden emulation_msgSend
    .type emulation_msgSend, %function
    .p2align 4
emulation_msgSend:
    .cfi_startproc
    cbz x0, 1f
    stp x29, x30, [sp, #-224]!
    .cfi_def_cfa_offset 224
    .cfi_offset 29, -224
    .cfi_offset 30, -216
    mov x29, sp
    stp x0, x1, [sp, #16]
    stp x2, x3, [sp, #32]
    stp x4, x5, [sp, #48]
    stp x6, x7, [sp, #64]
    str x8, [sp, #80]
    stp q0, q1, [sp, #96]
    stp q2, q3, [sp, #128]
    stp q4, q5, [sp, #160]
    stp q6, q7, [sp, #192]
    bl emulation_lookUp
    mov x16, x0
    ldp x0, x1, [sp, #16]
    ldp x2, x3, [sp, #32]
    ldp x4, x5, [sp, #48]
    ldp x6, x7, [sp, #64]
    ldr x8, [sp, #80]
    ldp q0, q1, [sp, #96]
    ldp q2, q3, [sp, #128]
    ldp q4, q5, [sp, #160]
    ldp q6, q7, [sp, #192]
    ldp x29, x30, [sp], #224
    .cfi_def_cfa_offset 0
    .cfi_restore 29
    .cfi_restore 30
    br x16
1:  // Nil answers zero in every register of a result.
    mov x1, #0
    movi d0, #0
    movi d1, #0
    movi d2, #0
    movi d3, #0
    ret
    .cfi_endproc
    .size emulation_msgSend, .-emulation_msgSend
)");

// A frame of its own: the result is looked at when the function has returned.
asm(R"(
    .macro CALLER name, widen
    .globl \name
    .hidden \name
    .type \name, %function
    .p2align 4
\name:
    .cfi_startproc
    stp x29, x30, [sp, #-16]!
    .cfi_def_cfa_offset 16
    .cfi_offset 29, -16
    .cfi_offset 30, -8
    mov x29, sp
    .cfi_def_cfa_register 29
    ldp q16, q17, [sp, #16]
    ldp q18, q19, [sp, #48]
    sub sp, sp, #64
    stp q16, q17, [sp]
    stp q18, q19, [sp, #32]
    blr x16
    \widen w0, w0
    mov sp, x29
    ldp x29, x30, [sp], #16
    .cfi_def_cfa 31, 0
    .cfi_restore 29
    .cfi_restore 30
    ret
    .cfi_endproc
    .size \name, .-\name
    .endm
    CALLER emulation_callU8, uxtb
    CALLER emulation_callS8, sxtb
    CALLER emulation_callU16, uxth
    CALLER emulation_callS16, sxth
)");

// The address of the arguments on the stack becomes the next argument.
asm(R"(
    .macro VARIADIC name, register, target
    .globl \name
    .hidden \name
    .type \name, %function
    .p2align 4
\name:
    .cfi_startproc
    mov \register, sp
    b \target
    .cfi_endproc
    .size \name, .-\name
    .endm
    VARIADIC emulation_NSLog, x1, emulation_NSLogList
    VARIADIC emulation_open, x2, emulation_openList
    VARIADIC emulation_snprintf, x3, emulation_vsnprintf
)");

extern "C" {
void emulation_callU8();
void emulation_callS8();
void emulation_callU16();
void emulation_callS16();
}

namespace emulation {

IMP callerThatWidens(Widening result) {
    constexpr std::array<IMP, 5> callers{nullptr, &emulation_callU8, &emulation_callS8,
                                         &emulation_callU16, &emulation_callS16};
    return callers[static_cast<std::size_t>(result)];
}

} // namespace emulation
