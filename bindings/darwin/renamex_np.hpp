// renamex_np: renaming that does not replace, and exchanging two entries in one step.
#pragma once

extern "C" {
/// 0, or -1 with errno set: ENOTSUP where the file system cannot do what the flags say. Any thread.
int renamex_np(const char* from, const char* to, unsigned flags);
}

namespace darwin {

// The platform's bits.
/// `from` and `to` exist, and change places.
inline constexpr unsigned renameSwap = 0x2;
/// Fails with EEXIST where `to` exists.
inline constexpr unsigned renameExclusive = 0x4;

} // namespace darwin
