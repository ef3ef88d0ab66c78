// Makes the perfect hash tables of the known preference keys, one for each encoding of names.
#include "library/preferences/key_table.hpp"

#include "library/common/byte_word.hpp"
#include "library/common/utf8_character.hpp"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <utility>

namespace wentra::preferences {
namespace {

// For the compiler only: the program finds the same keys where they lie.
constexpr auto knownKeys = std::bit_cast<std::array<Key, knownKeyCount>>(keys);
static_assert(knownKeyCount < 256, "an index takes one byte of the table");

constexpr std::string_view utf8Name(std::size_t index) { return knownKeys[index].name(); }

// A name as the bytes of a UTF-16 file spell it, most significant byte first.
struct Utf16Name {
    std::array<char, 2 * Key::capacity> bytes{};
    unsigned char size = 0;

    constexpr explicit Utf16Name(std::string_view name) {
        while (!name.empty()) {
            const auto [character, width] = decodeUtf8(name);
            append(character >> 8);
            append(character);
            name.remove_prefix(width);
        }
    }

    constexpr void append(char32_t byte) { bytes[size++] = static_cast<char>(byte); }
    constexpr std::string_view view() const { return {bytes.data(), size}; }
};

template <std::size_t... Index>
constexpr auto spellInUtf16(std::index_sequence<Index...>) {
    return std::array{Utf16Name(utf8Name(Index))...};
}

constexpr auto utf16Names = spellInUtf16(std::make_index_sequence<knownKeyCount>());

constexpr std::string_view utf16Name(std::size_t index) { return utf16Names[index].view(); }

constexpr std::size_t shortest = 4;

// Four bytes of either end and of the middle tell the known names apart; the rest is not read.
constexpr std::uint64_t digest(std::string_view name) {
    const auto word = [&](std::size_t place) -> std::uint64_t {
        return littleEndian<std::uint32_t>(name.data() + place);
    };
    const std::uint64_t ends = word(0) << 32 | word(name.size() - 4);
    return ends ^ word(name.size() / 2 - 2) * 0x9E3779B97F4A7C15U;
}

// Tells the one known name that a name may be.
class NameTable {
public:
    consteval explicit NameTable(std::string_view (*nameAt)(std::size_t)) {
        std::array<std::uint64_t, knownKeyCount> digests{};
        for (std::size_t index = 0; index < knownKeyCount; ++index) {
            digests[index] = digest(nameAt(index));
        }
        while (!fill(digests)) {
            multiplier_ += 2;
        }
    }

    std::size_t candidate(std::string_view name) const {
        return name.size() < shortest ? knownKeyCount : indices_[place(digest(name))];
    }

private:
    static constexpr int placeBits = 10; // one more when the compiler gives the search up
    static constexpr unsigned char emptyPlace = knownKeyCount;

    constexpr std::size_t place(std::uint64_t digest) const {
        return static_cast<std::size_t>((digest * multiplier_) >> (64 - placeBits));
    }

    // Whether this multiplier gives every name a place of its own.
    consteval bool fill(const std::array<std::uint64_t, knownKeyCount>& digests) {
        indices_.fill(emptyPlace);
        for (std::size_t index = 0; index < knownKeyCount; ++index) {
            unsigned char& entry = indices_[place(digests[index])];
            if (entry != emptyPlace) {
                return false;
            }
            entry = static_cast<unsigned char>(index);
        }
        return true;
    }

    std::uint64_t multiplier_ = 0xD6E8FEB86659FD93U;
    std::array<unsigned char, std::size_t{1} << placeBits> indices_{};
};

constexpr NameTable utf8Table(utf8Name);
constexpr NameTable utf16Table(utf16Name);

bool isName(std::string_view name, Encoding encoding, std::size_t index) {
    return name == (encoding == Encoding::utf8 ? reinterpret_cast<const Key*>(&keys)[index].name()
                                               : utf16Name(index));
}

} // namespace

std::size_t knownKeyIndex(std::string_view name, Encoding encoding) {
    const NameTable& table = encoding == Encoding::utf8 ? utf8Table : utf16Table;
    const std::size_t index = table.candidate(name);
    return index < knownKeyCount && isName(name, encoding, index) ? index : knownKeyCount;
}

} // namespace wentra::preferences
