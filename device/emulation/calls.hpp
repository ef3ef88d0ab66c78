// The calls that are written in assembly: they hand arguments on without knowing them.
#pragma once

#include "device/emulation/call_form.hpp"

#include "bindings/objc/runtime.hpp"

#include <cstddef>

extern "C" {
/// Sends a message, as the phone's function of a similar name does.
void emulation_msgSend();

// Functions with arguments of any number: the phone's callers put these on the stack, Linux's into
// registers first.
void emulation_NSLog();
void emulation_open();
void emulation_snprintf();
}

namespace emulation {

/// How many bytes of arguments on the stack the callers below hand on.
inline constexpr std::size_t handedOnStackSize = 64;

/// Calls the function whose address is in x16 with the arguments of its own call, and widens the
/// result.
[[nodiscard]] IMP callerThatWidens(Widening result);

} // namespace emulation
