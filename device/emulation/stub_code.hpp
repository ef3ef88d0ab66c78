// The machine code of the small functions between the library and Linux.
#pragma once

#include "device/emulation/call_form.hpp"

#include <cstdint>

namespace emulation {

/// Code that widens the arguments and goes on at `function`, for any place in memory that is a
/// multiple of 8.
[[nodiscard]] std::vector<std::uint32_t> wideningCode(const std::vector<NarrowArgument>& arguments,
                                                      std::uint64_t function);

/// Code that goes on at `caller` with `function` in the register x16.
[[nodiscard]] std::vector<std::uint32_t> callingCode(std::uint64_t caller, std::uint64_t function);

} // namespace emulation
