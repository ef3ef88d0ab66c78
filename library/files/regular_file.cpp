// Asks the system first.
#include "library/files/regular_file.hpp"

#include "library/common/text_encoding.hpp"

#include <fstream>
#include <iterator>
#include <sys/stat.h>

namespace wentra::files {

std::optional<long long> regularFileSize(const std::string& path) {
    struct stat status {};
    const bool found = stat(path.c_str(), &status) == 0;
    return found && S_ISREG(status.st_mode) ? std::optional<long long>(status.st_size)
                                            : std::nullopt;
}

ns::Data bytesOfFile(const std::string& path) {
    if (!regularFileSize(path)) {
        return nullptr;
    }
    if (isUtf8(path)) {
        return ns::Data::withContentsOfFile(ns::String::fromUtf8(path));
    }
    std::ifstream file(path, std::ios::binary); // the platform takes texts only
    return file ? ns::Data::from(std::string(std::istreambuf_iterator<char>(file), {})) : nullptr;
}

ui::Image imageOfFile(const std::string& path) {
    return regularFileSize(path) ? ui::Image::withContentsOfFile(ns::String::fromUtf8(path))
                                 : ui::Image();
}

} // namespace wentra::files
