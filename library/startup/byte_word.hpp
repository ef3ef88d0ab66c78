// Reads whole words of either byte order from bytes at any address.
#pragma once

#include <cstddef>
#include <cstdint>
#include <utility>

namespace wentra::startup {

/// The `Size` bytes at `bytes` (which must be readable) as a number, least significant byte first.
template <std::size_t Size>
constexpr std::uint64_t littleEndian(const char* bytes) {
    // One expression rather than a loop: compilers make a single load of it.
    return [bytes]<std::size_t... Index>(std::index_sequence<Index...>) {
        return ((std::uint64_t{static_cast<unsigned char>(bytes[Index])} << (8 * Index)) | ...);
    }(std::make_index_sequence<Size>());
}

/// The first `size` bytes (1 to 8) at `bytes` as a number, most significant byte first. Eight bytes
/// must be readable there whatever the size.
constexpr std::uint64_t bigEndian(const char* bytes, std::size_t size) {
    const auto word = [bytes]<std::size_t... Index>(std::index_sequence<Index...>) {
        return ((std::uint64_t{static_cast<unsigned char>(bytes[Index])} << (56 - 8 * Index)) | ...);
    }(std::make_index_sequence<8>());
    return word >> (64 - 8 * size);
}

} // namespace wentra::startup
