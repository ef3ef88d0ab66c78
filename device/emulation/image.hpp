// The library in memory.
#pragma once

#include "device/emulation/image_file.hpp"

#include <filesystem>

namespace emulation {

/// Maps the file, binds its imports, makes its frames known to Linux's unwinder and runs its
/// initialisers. Once; throws Refusal.
void bring(const std::filesystem::path& file);

/// Whether the library lies at that address, from when it was mapped.
[[nodiscard]] bool isInsideImage(std::uint64_t address);

} // namespace emulation
