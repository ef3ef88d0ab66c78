// removefile: removes trees.
#pragma once

#include <cstdint>

struct _removefile_state;
using removefile_state_t = _removefile_state*;
using removefile_flags_t = std::uint32_t;

extern "C" {
/// Removes the entry; links are removed, never followed. 0, or -1 with errno set. Any thread.
int removefile(const char* path, removefile_state_t state, removefile_flags_t flags);
}

namespace darwin {

/// With all that is in it; the platform's bit.
inline constexpr removefile_flags_t removefileRecursive = 1U << 0U;

} // namespace darwin
