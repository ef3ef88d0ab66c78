// copyfile: copies of files and trees with all that belongs to them.
#pragma once

#include <cstdint>

struct _copyfile_state;
using copyfile_state_t = _copyfile_state*;
using copyfile_flags_t = std::uint32_t;

extern "C" {
/// Copies `from` to `to`. 0, or -1 with errno set; what was made until then stays. Any thread.
int copyfile(const char* from, const char* to, copyfile_state_t state, copyfile_flags_t flags);
}

namespace darwin {

// The platform's bits.
/// The bytes, access lists, dates, permissions and extended attributes.
inline constexpr copyfile_flags_t copyfileAll = 0xFU;
inline constexpr copyfile_flags_t copyfileRecursive = 1U << 15U;
/// Fails where `to` exists.
inline constexpr copyfile_flags_t copyfileExclusive = 1U << 17U;
/// Links are copied as links.
inline constexpr copyfile_flags_t copyfileNoFollow = 3U << 18U;
/// Shares the bytes with the original where the file system can; not for folders.
inline constexpr copyfile_flags_t copyfileClone = 1U << 24U;

} // namespace darwin
