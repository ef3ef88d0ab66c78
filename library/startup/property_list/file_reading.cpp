// Opens, measures and reads a regular file.
#include "library/startup/property_list/file_reading.hpp"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace wentra::startup {
namespace {

class OpenFile {
public:
    // Opening a pipe for reading would otherwise wait for a writer.
    explicit OpenFile(const std::string& path)
        : descriptor_(open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC)) {}
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;
    ~OpenFile() {
        if (descriptor_ >= 0)
            close(descriptor_);
    }

    std::optional<std::size_t> regularSize() const {
        struct stat status {};
        if (descriptor_ < 0 || fstat(descriptor_, &status) != 0 || !S_ISREG(status.st_mode))
            return std::nullopt;
        return static_cast<std::size_t>(status.st_size);
    }

    bool readAll(char* bytes, std::size_t size) const {
        while (size > 0) {
            const ssize_t count = read(descriptor_, bytes, size);
            if (count < 0 && errno == EINTR)
                continue;
            if (count <= 0)
                return false;
            bytes += count;
            size -= static_cast<std::size_t>(count);
        }
        return true;
    }

private:
    int descriptor_;
};

} // namespace

std::optional<PaddedBytes> readRegularFile(const std::string& path, std::size_t limit) {
    const OpenFile file(path);
    const std::optional<std::size_t> size = file.regularSize();
    if (!size || *size > limit)
        return std::nullopt;
    PaddedBytes bytes(*size);
    if (!file.readAll(bytes.data(), *size))
        return std::nullopt;
    return bytes;
}

} // namespace wentra::startup
