// Memory that code can be written to while the process runs.
#pragma once

#include <cstdint>
#include <vector>

namespace emulation {

/// Where a copy of the instructions lies, for as long as the process lives; a multiple of 16. One
/// thread at a time.
[[nodiscard]] std::uint64_t keepCode(const std::vector<std::uint32_t>& code);

} // namespace emulation
