// Owns the bytes of a file with zeros after them, so that a reader may look a little past the end.
#pragma once

#include <algorithm>
#include <cstddef>
#include <memory>
#include <string_view>

namespace wentra::preferences {

/// Moving keeps the bytes where they are: views of them stay valid.
class PaddedBytes {
public:
    /// Zero bytes that follow the last byte.
    static constexpr std::size_t padding = 16;

    PaddedBytes() : PaddedBytes(0) {}

    /// `size` bytes of unspecified value, to be written through data().
    explicit PaddedBytes(std::size_t size)
        : data_(std::make_unique_for_overwrite<char[]>(size + padding)), size_(size) {
        std::fill_n(data_.get() + size, padding, '\0');
    }

    explicit PaddedBytes(std::string_view bytes) : PaddedBytes(bytes.size()) {
        std::copy(bytes.begin(), bytes.end(), data_.get());
    }

    char* data() { return data_.get(); }
    std::string_view view() const { return {data_.get(), size_}; }

private:
    std::unique_ptr<char[]> data_;
    std::size_t size_;
};

} // namespace wentra::preferences
