// Reads a whole file without ever waiting for one.
#pragma once

#include "library/preferences/property_list/padded_bytes.hpp"

#include <cstddef>
#include <optional>
#include <string_view>

namespace wentra::preferences {

/// A file opened for reading, closed at the end of its life.
class OpenFile {
public:
    /// The file at `path` (UTF-8); a file that cannot be opened reads as none.
    explicit OpenFile(const char* path);
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;
    ~OpenFile();

    bool isOpen() const { return descriptor_ >= 0; }

    /// Reads the file, as far as it takes to tell: whether it holds just these bytes.
    bool holds(std::string_view bytes) const;

    /// The bytes of a regular file. None when it cannot be read, is larger than `limit` bytes,
    /// shrinks meanwhile or is something else: a pipe, a folder, a device.
    std::optional<PaddedBytes> contents(std::size_t limit) const;

private:
    std::optional<std::size_t> regularSize() const;

    int descriptor_;
};

} // namespace wentra::preferences
