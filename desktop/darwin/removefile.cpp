// Removing trees without following links.
#include "bindings/darwin/removefile.hpp"

#include <cerrno>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

int removefile(const char* path, removefile_state_t, removefile_flags_t flags) {
    struct stat status {};
    if (lstat(path, &status) != 0) {
        return -1;
    }
    if (!S_ISDIR(status.st_mode)) {
        return unlink(path);
    }
    if ((flags & darwin::removefileRecursive) == 0) {
        return rmdir(path);
    }
    std::error_code error;
    std::filesystem::remove_all(path, error);
    errno = error.value();
    return error ? -1 : 0;
}
