// The token cutter.
#include "library/toolbox/tokens.hpp"

#include "library/common/surrogates.hpp"

#include <algorithm>
#include <array>
#include <cstdint>
#include <utility>

namespace wentra::toolbox {
namespace {

enum class Class : std::uint8_t { other, word, ideograph };

constexpr char16_t firstIdeograph = u'一';
constexpr char16_t lastIdeograph = u'龥';

constexpr auto asciiClasses = [] {
    std::array<Class, 128> classes{};
    for (const auto& [first, last] : {std::pair{'0', '9'}, {'A', 'Z'}, {'a', 'z'}}) {
        std::fill(classes.begin() + first, classes.begin() + last + 1, Class::word);
    }
    return classes;
}();

constexpr Class classOf(char16_t unit) {
    if (unit < asciiClasses.size()) {
        return asciiClasses[unit];
    }
    if (unit >= firstIdeograph && unit <= lastIdeograph) {
        return Class::ideograph;
    }
    // Without regard to case, long s and the Kelvin sign are the letters s and k.
    return unit == u'\u017F' || unit == u'\u212A' ? Class::word : Class::other;
}

/// Where the piece that begins at `start`, with a character of that class, ends.
std::size_t pieceEnd(std::u16string_view text, std::size_t start, Class first) {
    std::size_t end = start + 1;
    if (first != Class::other) {
        while (end < text.size() && classOf(text[end]) == first) {
            ++end;
        }
    } else if (end < text.size() && isSurrogatePair(text[start], text[end])) {
        ++end;
    }
    return end;
}

} // namespace

std::vector<std::u16string_view> cutTokens(std::u16string_view text) {
    std::vector<std::u16string_view> tokens;
    tokens.reserve(text.size() / 2); // enough for nearly any text; what is not used is not touched
    for (std::size_t start = 0; start < text.size();) {
        const std::size_t end = pieceEnd(text, start, classOf(text[start]));
        tokens.push_back(text.substr(start, end - start));
        start = end;
    }
    return tokens;
}

} // namespace wentra::toolbox
