// Frames of compact unwind tables, rewritten in the form that Linux's unwinder reads (DWARF).
#pragma once

#include "device/emulation/unwind_info.hpp"

#include <functional>

namespace emulation {

/// Call frame information of these rows, for an image at the address `base`, up to the zero word
/// that ends it. `personality` gives the function whose address a word of the image holds. Rows
/// that the compact form leaves to `__eh_frame` are left out. Throws Refusal for an unknown
/// encoding.
[[nodiscard]] std::vector<std::byte>
callFrames(const std::vector<FrameRow>& rows, std::uint64_t base,
           const std::function<std::uint64_t(std::uint32_t word)>& personality);

} // namespace emulation
