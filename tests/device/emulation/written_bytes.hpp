// Bytes of a file, written by a test.
#pragma once

#include "device/emulation/byte_reader.hpp"

#include <initializer_list>
#include <string_view>
#include <vector>

namespace tests {

class WrittenBytes {
public:
    WrittenBytes() = default;
    WrittenBytes(std::initializer_list<int> values) {
        for (const int one : values) {
            value(static_cast<std::uint8_t>(one));
        }
    }

    template <class T>
    WrittenBytes& value(const T& value) {
        const auto raw = std::as_bytes(std::span(&value, 1));
        bytes_.insert(bytes_.end(), raw.begin(), raw.end());
        return *this;
    }
    WrittenBytes& words(std::initializer_list<std::uint32_t> words) {
        for (const std::uint32_t word : words) {
            value(word);
        }
        return *this;
    }
    /// With its final zero.
    WrittenBytes& text(std::string_view text) {
        for (const char one : text) {
            value(one);
        }
        return value('\0');
    }
    WrittenBytes& append(const WrittenBytes& more) {
        bytes_.insert(bytes_.end(), more.bytes_.begin(), more.bytes_.end());
        return *this;
    }

    [[nodiscard]] emulation::Bytes view() const { return bytes_; }
    [[nodiscard]] std::size_t size() const { return bytes_.size(); }

private:
    std::vector<std::byte> bytes_;
};

} // namespace tests
