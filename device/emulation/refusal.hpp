// What the loader does not bring: it says so by name and goes no further.
#pragma once

#include <stdexcept>
#include <string>

namespace emulation {

/// Something in the library, or in a call of it, that Linux cannot be made to do.
struct Refusal : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// Ends the process: for calls of the running library, which would swallow an exception.
[[noreturn]] void refuse(const std::string& what);

} // namespace emulation
