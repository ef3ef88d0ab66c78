// Numbers that the phone's system and Linux's give to the same things.
#pragma once

#include <optional>

namespace emulation {

/// The phone's number for one of Linux's errors; none where the phone has no such error.
[[nodiscard]] std::optional<int> phoneError(int linuxError);

/// Linux's flags for opening a file, for the phone's; none when one of them is unknown.
[[nodiscard]] std::optional<int> linuxOpenFlags(int phoneFlags);

/// Linux's flags for asking about a file in a folder (`AT_…`); none when one of them is unknown.
[[nodiscard]] std::optional<int> linuxLookupFlags(int phoneFlags);

} // namespace emulation
