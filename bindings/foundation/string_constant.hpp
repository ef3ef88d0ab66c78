// The objects that string literals stand for.
#pragma once

#include "bindings/objc/runtime.hpp"

#include <algorithm>
#include <array>
#include <atomic>
#include <cstddef>
#include <string_view>

#ifdef __APPLE__
// NOLINTNEXTLINE(bugprone-reserved-identifier): Core Foundation's class of constant strings.
extern "C" int __CFConstantStringClassReference[];
#endif

namespace ns::detail {

/// A UTF-16 literal as a template argument.
template <std::size_t Size>
struct Utf16Literal {
    char16_t text[Size]{};
    // NOLINTNEXTLINE(google-explicit-constructor): the compiler makes it from a literal.
    constexpr Utf16Literal(const char16_t (&characters)[Size]) {
        std::copy_n(characters, Size, text);
    }
    [[nodiscard]] constexpr std::u16string_view view() const { return {text, Size - 1}; }
    [[nodiscard]] constexpr bool isAscii() const {
        return std::ranges::all_of(view(), [](char16_t unit) { return unit < 0x80; });
    }
};

#ifdef __APPLE__

/// The string itself, as a compiler lays it out for Objective-C sources: it needs no code.
class StringConstant {
public:
    constexpr StringConstant(const char* characters, long length)
        : flags_(0x7C8), characters_(characters), length_(length) {}
    constexpr StringConstant(const char16_t* characters, long length)
        : flags_(0x7D0), characters_(characters), length_(length) {}

    [[nodiscard]] id object() { return reinterpret_cast<id>(this); }

private:
    // Read by the platform.
    [[maybe_unused]] const void* class_ = __CFConstantStringClassReference;
    [[maybe_unused]] int flags_;
    [[maybe_unused]] const void* characters_;
    [[maybe_unused]] long length_;
};

/// The literal's text as the string keeps it: one byte for each unit where that is enough.
template <Utf16Literal Text>
inline constexpr auto storedText = [] {
    std::array<char, sizeof Text.text / sizeof(char16_t)> stored{};
    std::ranges::transform(Text.text, stored.begin(),
                           [](char16_t unit) { return static_cast<char>(unit); });
    return stored;
}();
template <Utf16Literal Text>
requires(!Text.isAscii()) inline constexpr auto storedText<Text> = std::to_array(Text.text);

#else

/// The string, made when it is first asked for.
class StringConstant {
public:
    constexpr StringConstant(const char16_t* characters, long length)
        : characters_(characters), length_(length) {}

    /// One object for the life of the process. Any thread.
    [[nodiscard]] id object();

private:
    const char16_t* characters_;
    long length_;
    std::atomic<id> made_{nullptr};
};

template <Utf16Literal Text>
inline constexpr auto storedText = std::to_array(Text.text);

#endif

template <Utf16Literal Text>
inline constinit StringConstant stringConstant{storedText<Text>.data(),
                                               static_cast<long>(Text.view().size())};

} // namespace ns::detail
