// NSString: UTF-16 text.
#pragma once

#include "bindings/foundation/range.hpp"
#include "bindings/objc/kind.hpp"
#include "bindings/objc/strong.hpp"

#include <optional>
#include <string>
#include <string_view>

namespace ns {

struct String : objc::Kind<String, "NSString"> {
    using Kind::Kind;

    /// A new string with these UTF-16 units, lone surrogates included.
    static String from(std::u16string_view text) {
        return make<"initWithCharacters:length:">(text.data(),
                                                  static_cast<unsigned long>(text.size()));
    }
    /// A new string from UTF-8; nil when the bytes are not UTF-8.
    static String fromUtf8(std::string_view text) {
        constexpr unsigned long utf8Encoding = 4; // NSUTF8StringEncoding
        return make<"initWithBytes:length:encoding:">(static_cast<const void*>(text.data()),
                                                      static_cast<unsigned long>(text.size()),
                                                      utf8Encoding);
    }

    [[nodiscard]] unsigned long length() const { return send<"length", unsigned long>(); }
    [[nodiscard]] float floatValue() const { return send<"floatValue", float>(); }
    [[nodiscard]] bool isEqualToString(String other) const {
        return send<"isEqualToString:", bool>(other);
    }
    /// Where `other` stands first in that range, whatever its case; nothing where it does not.
    [[nodiscard]] std::optional<ns::Range> findIgnoringCase(String other, ns::Range range) const {
        constexpr unsigned long caseInsensitive = 1;
        const auto found =
            send<"rangeOfString:options:range:", ns::Range>(other, caseInsensitive, range);
        return found.length == 0 ? std::nullopt : std::optional(found);
    }
    void getCharacters(char16_t* buffer, ns::Range range) const {
        send<"getCharacters:range:">(buffer, range);
    }
    /// The UTF-16 units; empty for nil.
    [[nodiscard]] std::u16string utf16() const {
        std::u16string text(length(), u'\0');
        getCharacters(text.data(), {0, text.size()});
        return text;
    }
    /// The text as UTF-8; empty for nil and for text that has no UTF-8 form (a lone surrogate).
    [[nodiscard]] std::string utf8() const {
        const char* text = send<"UTF8String", const char*>();
        return text == nullptr ? std::string() : std::string(text);
    }
};

/// What the object says of itself, for people.
inline String description(objc::Object object) { return object.send<"description", String>(); }

namespace detail {

/// A UTF-16 literal as a template argument.
template <std::size_t Size>
struct Utf16Literal {
    char16_t text[Size]{};
    // NOLINTNEXTLINE(google-explicit-constructor): the compiler makes it from a literal.
    constexpr Utf16Literal(const char16_t (&characters)[Size]) {
        std::copy_n(characters, Size, text);
    }
    [[nodiscard]] constexpr std::u16string_view view() const { return {text, Size - 1}; }
};

} // namespace detail

inline namespace literals {

/// `u"你好"_ns`: one string object for the life of the process.
template <detail::Utf16Literal Text>
String operator""_ns() {
    static const String constant = [] {
        return String::sendClass<"alloc", String>().send<"initWithCharacters:length:", String>(
            static_cast<const char16_t*>(Text.text),
            static_cast<unsigned long>(Text.view().size()));
    }();
    return constant;
}

} // namespace literals
} // namespace ns
