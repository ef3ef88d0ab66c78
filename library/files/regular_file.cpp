// Asks the system first.
#include "library/files/regular_file.hpp"

#include "library/common/text_encoding.hpp"
#include "library/files/image_header.hpp"

#include <fcntl.h>
#include <memory>
#include <sys/stat.h>
#include <unistd.h>

namespace wentra::files {
namespace {

/// The platform's own reading takes texts only.
ns::Data bytesOfAnyName(const std::string& path, long long size) {
    const auto room = static_cast<std::size_t>(size);
    const auto bytes = std::make_unique_for_overwrite<char[]>(room);
    const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC);
    const ssize_t count = pread(file, bytes.get(), room, 0);
    close(file);
    return count < 0 ? ns::Data() : ns::Data::from({bytes.get(), static_cast<std::size_t>(count)});
}

std::uint64_t pixelsByHeader(const std::string& path) {
    const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC);
    const std::uint64_t pixels = announcedPixels([file](std::size_t place, std::size_t count) {
        std::string bytes(count, '\0');
        const ssize_t got = pread(file, bytes.data(), count, static_cast<off_t>(place));
        bytes.resize(got < 0 ? 0 : static_cast<std::size_t>(got));
        return bytes;
    });
    close(file);
    return pixels;
}

} // namespace

std::optional<long long> regularFileSize(const std::string& path) {
    struct stat status {};
    const bool found = stat(path.c_str(), &status) == 0;
    return found && S_ISREG(status.st_mode) ? std::optional<long long>(status.st_size)
                                            : std::nullopt;
}

ns::Data bytesOfFile(const std::string& path) {
    const auto size = regularFileSize(path);
    if (!size) {
        return nullptr;
    }
    return isUtf8(path) ? ns::Data::withContentsOfFile(ns::String::fromUtf8(path))
                        : bytesOfAnyName(path, *size);
}

ui::Image imageOfFile(const std::string& path) {
    if (!regularFileSize(path)) {
        return nullptr;
    }
    return pixelsByHeader(path) > mostPixels
               ? ui::Image()
               : ui::Image::withContentsOfFile(ns::String::fromUtf8(path));
}

} // namespace wentra::files
