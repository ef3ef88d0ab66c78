// Makes the perfect hash table of the known preference keys.
#include "library/startup/key_table.hpp"

#include "library/startup/byte_word.hpp"

#include <algorithm>
#include <bit>
#include <cstdint>

namespace wentra::startup {
namespace {

constexpr auto knownKeys = std::bit_cast<std::array<Key, knownKeyCount>>(keys);
static_assert(knownKeyCount < 256, "an index takes one byte of the table");

constexpr std::size_t shortestName =
    std::ranges::min(knownKeys, {}, [](const Key& key) { return key.name().size(); }).name().size();
static_assert(shortestName >= 4, "a digest reads four bytes at once");

// Names differ at one of their ends, so the middle need not be read.
constexpr std::uint64_t digest(std::string_view name) {
    const char* end = name.data() + name.size();
    const std::uint64_t head = littleEndian<std::uint32_t>(name.data());
    return head << 32 | littleEndian<std::uint32_t>(end - 4);
}

constexpr auto digests = [] {
    std::array<std::uint64_t, knownKeyCount> result{};
    std::ranges::transform(knownKeys, result.begin(),
                           [](const Key& key) { return digest(key.name()); });
    return result;
}();

class PerfectHash {
public:
    consteval PerfectHash() {
        while (!fill())
            multiplier_ += 2;
    }

    constexpr std::size_t operator[](std::uint64_t digest) const { return indices_[place(digest)]; }

private:
    static constexpr int placeBits = 11;

    constexpr std::size_t place(std::uint64_t digest) const {
        return static_cast<std::size_t>((digest * multiplier_) >> (64 - placeBits));
    }

    consteval bool fill() {
        indices_.fill(emptyPlace);
        for (std::size_t index = 0; index < knownKeyCount; ++index) {
            auto& entry = indices_[place(digests[index])];
            if (entry != emptyPlace)
                return false;
            entry = static_cast<unsigned char>(index);
        }
        return true;
    }

    static constexpr unsigned char emptyPlace = knownKeyCount;

    std::uint64_t multiplier_ = 0xD6E8FEB86659FD93U;
    std::array<unsigned char, std::size_t{1} << placeBits> indices_{};
};

constexpr PerfectHash perfectHash;

} // namespace

std::size_t knownKeyIndex(std::string_view name) {
    if (name.size() < shortestName || name.size() > Key::capacity)
        return knownKeyCount;
    const std::size_t index = perfectHash[digest(name)];
    return index < knownKeyCount && knownKeys[index].name() == name ? index : knownKeyCount;
}

} // namespace wentra::startup
