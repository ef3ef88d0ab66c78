// The kinds of preference key: what a key is called in the file and how its value is read.
#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace wentra::preferences {

/// A key known at compile time. The name is stored in place so that a struct of keys is also,
/// byte for byte, an array of keys.
class Key {
public:
    static constexpr std::size_t capacity = 24;

    /// From a UTF-8 literal of at most `capacity` bytes.
    template <std::size_t Size>
    requires(Size <= capacity + 1) explicit constexpr Key(const char (&name)[Size])
        : length_{static_cast<unsigned char>(Size - 1)} {
        for (std::size_t index = 0; index + 1 < Size; ++index) {
            name_[index] = name[index];
        }
    }

    constexpr std::string_view name() const { return {name_.data(), length_}; }

private:
    std::array<char, capacity> name_{};
    unsigned char length_;
};

/// A key of a boolean, off when absent.
class Switch : public Key {
    using Key::Key;
};

/// A key of a number, 0 when absent.
class Number : public Key {
    using Key::Key;
};

/// A key of a string, empty when absent.
class Text : public Key {
    using Key::Key;
};

} // namespace wentra::preferences
