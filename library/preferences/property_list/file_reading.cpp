// Opens, compares, measures and reads a file.
#include "library/preferences/property_list/file_reading.hpp"

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace wentra::preferences {
// Opening a pipe for reading would otherwise wait for a writer.
OpenFile::OpenFile(const char* path) : descriptor_(open(path, O_RDONLY | O_NONBLOCK | O_CLOEXEC)) {}

OpenFile::~OpenFile() {
    if (isOpen()) {
        close(descriptor_);
    }
}

std::optional<std::size_t> OpenFile::regularSize() const {
    struct stat status {};
    if (!isOpen() || fstat(descriptor_, &status) != 0 || !S_ISREG(status.st_mode)) {
        return std::nullopt;
    }
    return static_cast<std::size_t>(status.st_size);
}

// Reading at a place takes nothing out of a pipe, which has no places. The buffer holds usual files
// as a whole, so that nobody has to be asked for the size first, and leaves room on small stacks.
bool OpenFile::holds(std::string_view bytes) const {
    std::array<char, 32768> buffer; // NOLINT(cppcoreguidelines-pro-type-member-init): it is filled
    for (std::size_t place = 0;;) {
        const ssize_t count =
            pread(descriptor_, buffer.data(), buffer.size(), static_cast<off_t>(place));
        if (count < 0) {
            return false;
        }
        const auto size = static_cast<std::size_t>(count);
        if (bytes.substr(place, size) != std::string_view(buffer.data(), size)) {
            return false;
        }
        place += size;
        if (size < buffer.size()) {
            return place == bytes.size();
        }
    }
}

std::optional<PaddedBytes> OpenFile::contents(std::size_t limit) const {
    const std::optional<std::size_t> size = regularSize();
    if (!size || *size > limit) {
        return std::nullopt;
    }
    PaddedBytes bytes(*size);
    for (std::size_t place = 0; place < *size;) {
        const ssize_t count =
            pread(descriptor_, bytes.data() + place, *size - place, static_cast<off_t>(place));
        if (count < 0 && errno == EINTR) {
            continue;
        }
        if (count <= 0) {
            return std::nullopt;
        }
        place += static_cast<std::size_t>(count);
    }
    return bytes;
}

} // namespace wentra::preferences
