// Reads whole words of either byte order from bytes at any address.
#pragma once

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <utility>

namespace wentra {

/// The bytes at `bytes`, as many as the word has, as a number, least significant byte first.
template <typename Word>
constexpr Word littleEndian(const char* bytes) {
    static_assert(std::endian::native == std::endian::little);
    std::array<char, sizeof(Word)> word{};
    std::copy_n(bytes, word.size(), word.begin());
    return std::bit_cast<Word>(word);
}

/// The first `size` bytes (1 to 8) at `bytes` as a number, most significant byte first. Eight bytes
/// must be readable there whatever the size.
constexpr std::uint64_t bigEndian(const char* bytes, std::size_t size) {
    // One expression rather than a loop: compilers make a single load of it.
    const auto word = [bytes]<std::size_t... Index>(std::index_sequence<Index...>) {
        return ((std::uint64_t{static_cast<unsigned char>(bytes[Index])} << (56 - 8 * Index)) |
                ...);
    }
    (std::make_index_sequence<8>());
    return word >> (64 - 8 * size);
}

} // namespace wentra
