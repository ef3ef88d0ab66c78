// Makes the perfect hash tables of the known preference keys, one for each encoding of names.
#include "library/preferences/key_table.hpp"

#include "library/common/byte_word.hpp"
#include "library/common/utf8_character.hpp"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>

namespace wentra::preferences {
namespace {

constexpr auto knownKeys = std::bit_cast<std::array<Key, knownKeyCount>>(keys);
static_assert(knownKeyCount < 256, "an index takes one byte of the table");

// A name as the bytes of a file spell it.
struct Name {
    std::array<char, 2 * Key::capacity> bytes{};
    std::size_t size = 0;

    constexpr std::string_view view() const { return {bytes.data(), size}; }

    constexpr void append(char32_t byte) { bytes[size++] = static_cast<char>(byte); }
};

using Names = std::array<Name, knownKeyCount>;

constexpr Name utf8Name(const Key& key) {
    Name name;
    for (const char byte : key.name()) {
        name.append(static_cast<unsigned char>(byte));
    }
    return name;
}

constexpr Name utf16Name(const Key& key) {
    Name name;
    for (std::string_view rest = key.name(); !rest.empty();) {
        const auto [character, size] = decodeUtf8(rest);
        name.append(character >> 8);
        name.append(character);
        rest.remove_prefix(size);
    }
    return name;
}

constexpr std::size_t shortest = 4;

// Four bytes of either end and of the middle tell the known names apart; the rest is not read.
constexpr std::uint64_t digest(std::string_view name) {
    const auto word = [&](std::size_t place) -> std::uint64_t {
        return littleEndian<std::uint32_t>(name.data() + place);
    };
    const std::uint64_t ends = word(0) << 32 | word(name.size() - 4);
    return ends ^ word(name.size() / 2 - 2) * 0x9E3779B97F4A7C15U;
}

class NameTable {
public:
    consteval explicit NameTable(Name (*spell)(const Key&)) {
        std::array<std::uint64_t, knownKeyCount> digests{};
        for (std::size_t index = 0; index < knownKeyCount; ++index) {
            names_[index] = spell(knownKeys[index]);
            digests[index] = digest(names_[index].view());
        }
        while (!fill(digests)) {
            multiplier_ += 2;
        }
    }

    std::size_t index(std::string_view name) const {
        if (name.size() < shortest) {
            return knownKeyCount;
        }
        const std::size_t index = indices_[place(digest(name))];
        return index < knownKeyCount && names_[index].view() == name ? index : knownKeyCount;
    }

private:
    static constexpr int placeBits = 11;
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
    Names names_{};
};

constexpr NameTable utf8Names(utf8Name);
constexpr NameTable utf16Names(utf16Name);

} // namespace

std::size_t knownKeyIndex(std::string_view name, Encoding encoding) {
    return (encoding == Encoding::utf8 ? utf8Names : utf16Names).index(name);
}

} // namespace wentra::preferences
