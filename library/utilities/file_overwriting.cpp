// Opens, writes in as many pieces as the system wants, closes.
#include "library/utilities/file_overwriting.hpp"

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace wentra::utilities {

bool overwriteFile(const char* path, std::string_view bytes) {
    constexpr int everybodyReads = 0644;
    // Opening a pipe for writing would otherwise wait for a reader.
    const int file = open(path, O_WRONLY | O_CREAT | O_NONBLOCK | O_CLOEXEC, everybodyReads);
    if (file < 0) {
        return false;
    }
    while (!bytes.empty()) {
        const ssize_t written = write(file, bytes.data(), bytes.size());
        if (written < 0 && errno != EINTR) {
            break;
        }
        bytes.remove_prefix(written < 0 ? 0 : static_cast<std::size_t>(written));
    }
    close(file);
    return true;
}

} // namespace wentra::utilities
