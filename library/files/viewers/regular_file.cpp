// Asks the system.
#include "library/files/viewers/regular_file.hpp"

#include <sys/stat.h>

namespace wentra::files {

std::optional<long long> regularFileSize(ns::String path) {
    struct stat status {};
    const bool found = ::stat(path.utf8().c_str(), &status) == 0;
    return found && S_ISREG(status.st_mode) ? std::optional<long long>(status.st_size)
                                            : std::nullopt;
}

} // namespace wentra::files
