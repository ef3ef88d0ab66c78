// What can be read to its end: files, not pipes or devices.
#pragma once

#include "bindings/foundation/data.hpp"
#include "bindings/uikit/image.hpp"

#include <cstdlib>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace wentra::files {

// A regular file, or a link that leads to one. Reading anything else might wait for others, or
// never end.

/// The file's size in bytes; nothing for folders, pipes and devices, and where there is none.
[[nodiscard]] std::optional<long long> regularFileSize(const std::string& path);

/// Memory of `std::malloc` with what is in a file.
struct FileBytes {
    std::unique_ptr<char, decltype(&std::free)> memory;
    std::size_t count;

    [[nodiscard]] std::string_view view() const { return {memory.get(), count}; }
};

/// What is in the file, whatever its name; nothing for what is none, and when it cannot be read.
[[nodiscard]] std::optional<FileBytes> readFile(const std::string& path);

/// The same as an object; nil for what is none, and when it cannot be read.
[[nodiscard]] ns::Data bytesOfFile(const std::string& path);

/// The image in the file; nil for what holds none, and for one that memory would not hold.
[[nodiscard]] ui::Image imageOfFile(const std::string& path);

} // namespace wentra::files
