// Asks the system first.
#include "library/files/regular_file.hpp"

#include "library/common/text_encoding.hpp"
#include "library/files/image_header.hpp"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace wentra::files {
namespace {

/// Whether the file could be read, up to its end or that many bytes.
bool readTo(FileBytes& bytes, std::size_t room, int file) {
    constexpr std::size_t most = 1U << 30U; // phones refuse what an int cannot tell
    while (bytes.count < room) {
        const ssize_t count =
            pread(file, bytes.memory.get() + bytes.count, std::min(room - bytes.count, most),
                  static_cast<off_t>(bytes.count));
        if (count < 0 && errno == EINTR) {
            continue;
        }
        if (count <= 0) {
            return count == 0;
        }
        bytes.count += static_cast<std::size_t>(count);
    }
    return true;
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

std::optional<FileBytes> readFile(const std::string& path) {
    constexpr int reading = O_RDONLY | O_CLOEXEC | O_NONBLOCK; // a pipe may have taken its place
    const auto size = regularFileSize(path);
    const auto room = static_cast<std::size_t>(size.value_or(0));
    FileBytes bytes{{static_cast<char*>(std::malloc(room + 1)), &std::free}, 0};
    const int file = size && bytes.memory ? open(path.c_str(), reading) : -1;
    const bool hasAll = file >= 0 && readTo(bytes, room, file);
    close(file);
    return hasAll ? std::optional(std::move(bytes)) : std::nullopt;
}

ns::Data bytesOfFile(const std::string& path) {
    if (!isUtf8(path)) { // the platform's own reading takes texts only
        const auto bytes = readFile(path);
        return bytes ? ns::Data::from(bytes->view()) : ns::Data();
    }
    return regularFileSize(path) ? ns::Data::withContentsOfFile(ns::String::fromUtf8(path))
                                 : ns::Data();
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
