// What `stat` tells, where the systems' structures differ.
#pragma once

#include <sys/stat.h>

namespace darwin {

/// When the file's content changed last.
template <class Status>
timespec modificationTime(const Status& status) {
    if constexpr (requires { status.st_mtimespec; }) {
        return status.st_mtimespec;
    } else {
        return status.st_mtim;
    }
}

} // namespace darwin
