// Renaming by the flags of Linux.
#include "bindings/darwin/renamex_np.hpp"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>

int renamex_np(const char* from, const char* to, unsigned flags) {
    const bool swaps = (flags & darwin::renameSwap) != 0;
    const bool excludes = (flags & darwin::renameExclusive) != 0;
    if (swaps && excludes) {
        errno = EINVAL;
        return -1;
    }
    const unsigned linuxFlags = swaps ? RENAME_EXCHANGE : excludes ? RENAME_NOREPLACE : 0;
    const int result = renameat2(AT_FDCWD, from, AT_FDCWD, to, linuxFlags);
    if (result != 0 && errno == EINVAL && linuxFlags != 0) {
        errno = ENOTSUP; // how Linux says that the file system cannot do that
    }
    return result;
}
