// NSString: UTF-16 text.
#pragma once

#include "bindings/foundation/range.hpp"
#include "bindings/foundation/string_constant.hpp"
#include "bindings/objc/kind.hpp"
#include "bindings/objc/options.hpp"
#include "bindings/objc/strong.hpp"

#include <optional>
#include <string>
#include <string_view>

namespace ns {

using objc::operator|, objc::operator&, objc::operator~;

/// How texts are compared and searched for; the platform's bits.
enum class StringCompareOptions : unsigned long {
    caseInsensitive = 1U << 0U,
    literal = 1U << 1U,
    backwards = 1U << 2U,
    anchored = 1U << 3U,
    numeric = 1U << 6U,
    diacriticInsensitive = 1U << 7U,
    widthInsensitive = 1U << 8U,
};
constexpr bool areOptions(StringCompareOptions) { return true; }

/// The platform's numbers.
enum class StringEncoding : unsigned long {
    ascii = 1,
    japaneseEuc = 3,
    utf8 = 4,
    isoLatin1 = 5,
    utf16 = 10
};

struct Data;
struct Error;

struct String : objc::Kind<String, "NSString"> {
    using Kind::Kind;

    /// A new string with these UTF-16 units, lone surrogates included.
    static String from(std::u16string_view text) {
        return make<"initWithCharacters:length:">(text.data(),
                                                  static_cast<unsigned long>(text.size()));
    }
    /// A new string that keeps these bytes, all of them ASCII, and frees them at its end; nothing
    /// is copied. They come from `std::malloc`.
    static String takingAscii(char* bytes, std::size_t count) {
        constexpr auto encoding = StringEncoding::isoLatin1; // in which no byte need be checked
        constexpr bool freesThem = true;
        return make<"initWithBytesNoCopy:length:encoding:freeWhenDone:">(
            static_cast<void*>(bytes), static_cast<unsigned long>(count), encoding, freesThem);
    }
    /// A new string from UTF-8; nil when the bytes are not UTF-8.
    static String fromUtf8(std::string_view text) { return from(text, StringEncoding::utf8); }
    /// Nil when the bytes are no text in that encoding.
    static String from(std::string_view bytes, StringEncoding encoding) {
        return make<"initWithBytes:length:encoding:">(static_cast<const void*>(bytes.data()),
                                                      static_cast<unsigned long>(bytes.size()),
                                                      encoding);
    }
    /// The same for an object's bytes. Defined in data.hpp.
    static String from(Data data, StringEncoding encoding);

    [[nodiscard]] unsigned long length() const { return send<"length", unsigned long>(); }
    /// Of the number that the text begins with; 0 without one.
    [[nodiscard]] long integerValue() const { return send<"integerValue", long>(); }
    /// The path of a name in the folder that this is the path of.
    [[nodiscard]] String appendingPathComponent(String name) const {
        return send<"stringByAppendingPathComponent:", String>(name);
    }
    [[nodiscard]] float floatValue() const { return send<"floatValue", float>(); }
    [[nodiscard]] bool isEqualToString(String other) const {
        return send<"isEqualToString:", bool>(other);
    }
    /// Nil when a percent sign has no two hexadecimal digits behind it, or the bytes are not UTF-8.
    [[nodiscard]] String removingPercentEncoding() const {
        return send<"stringByRemovingPercentEncoding", String>();
    }
    /// Where `other` stands in that range, first unless searched backwards; nothing where it does
    /// not.
    [[nodiscard]] std::optional<ns::Range> rangeOf(String other, StringCompareOptions options,
                                                   ns::Range range) const {
        const auto found = send<"rangeOfString:options:range:", ns::Range>(other, options, range);
        return found.length == 0 ? std::nullopt : std::optional(found);
    }
    void getCharacters(char16_t* buffer, ns::Range range) const {
        send<"getCharacters:range:">(buffer, range);
    }
    /// Nil when the file holds the text; an error for text that has no such form. Atomically:
    /// through a file beside it. Defined in result.hpp.
    [[nodiscard]] Error writeToFile(String path, bool atomically, StringEncoding encoding) const;
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

struct MutableString : objc::Kind<MutableString, "NSMutableString", String> {
    using Kind::Kind;

    void append(String text) const { send<"appendString:">(text); }
};

/// What the object says of itself, for people.
inline String description(objc::Object object) { return object.send<"description", String>(); }

inline namespace literals {

/// `u"你好"_ns`: one string object for the life of the process.
template <detail::Utf16Literal Text>
String operator""_ns() {
    return objc::wrap<String>(detail::stringConstant<Text>.object());
}

} // namespace literals
} // namespace ns
