// The token cutter.
#include "library/toolbox/tokens.hpp"

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
        for (int c = first; c <= last; ++c) {
            classes[static_cast<std::size_t>(c)] = Class::word;
        }
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

constexpr bool isLeadSurrogate(char16_t unit) { return (unit & 0xFC00U) == 0xD800U; }
constexpr bool isTrailSurrogate(char16_t unit) { return (unit & 0xFC00U) == 0xDC00U; }

/// The length of the first piece of text that is not empty.
std::size_t firstLength(std::u16string_view text) {
    const Class first = classOf(text[0]);
    if (first == Class::other) {
        const bool isPair =
            text.size() > 1 && isLeadSurrogate(text[0]) && isTrailSurrogate(text[1]);
        return isPair ? 2 : 1;
    }
    std::size_t length = 1;
    while (length < text.size() && classOf(text[length]) == first) {
        ++length;
    }
    return length;
}

} // namespace

std::vector<std::u16string_view> cutTokens(std::u16string_view text) {
    std::vector<std::u16string_view> tokens;
    while (!text.empty()) {
        const std::size_t length = firstLength(text);
        tokens.push_back(text.substr(0, length));
        text.remove_prefix(length);
    }
    return tokens;
}

} // namespace wentra::toolbox
