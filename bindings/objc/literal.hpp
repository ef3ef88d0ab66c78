// A string literal as a template argument: selectors, class names and type encodings are values of
// it.
#pragma once

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace objc {

/// The characters of a literal with their terminating NUL; `Size` counts the NUL.
template <std::size_t Size>
struct Literal {
    char text[Size]{};

    constexpr Literal() = default;
    // NOLINTNEXTLINE(google-explicit-constructor): a literal is written where a Literal is wanted.
    constexpr Literal(const char (&characters)[Size]) { std::copy_n(characters, Size, text); }

    [[nodiscard]] constexpr std::string_view view() const { return {text, Size - 1}; }
    [[nodiscard]] constexpr const char* data() const { return text; }
};

/// The literals one after the other.
template <std::size_t... Sizes>
constexpr auto join(const Literal<Sizes>&... parts) {
    Literal<(Sizes + ... + 1) - sizeof...(Sizes)> joined;
    char* end = joined.text;
    ((end = std::copy_n(parts.text, Sizes - 1, end)), ...);
    return joined;
}

/// The name of the setter of a property: "tintColor" gives "setTintColor:".
template <std::size_t Size>
constexpr auto setterName(Literal<Size> property) {
    char& first = property.text[0];
    if (first >= 'a' && first <= 'z') {
        first = static_cast<char>(first - 'a' + 'A');
    }
    return join(Literal("set"), property, Literal(":"));
}

/// The name of the getter of a boolean property: "hidden" gives "isHidden".
template <std::size_t Size>
constexpr auto flagGetterName(Literal<Size> property) {
    char& first = property.text[0];
    if (first >= 'a' && first <= 'z') {
        first = static_cast<char>(first - 'a' + 'A');
    }
    return join(Literal("is"), property);
}

/// How many arguments a selector takes: one for each colon.
template <std::size_t Size>
constexpr std::size_t argumentCount(const Literal<Size>& selector) {
    return static_cast<std::size_t>(std::ranges::count(selector.view(), ':'));
}

} // namespace objc
