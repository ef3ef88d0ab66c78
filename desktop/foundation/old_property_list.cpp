// One pass from the text to the objects.
#include "desktop/foundation/old_property_list.hpp"

#include "bindings/foundation/array.hpp"
#include "bindings/foundation/data.hpp"
#include "bindings/foundation/dictionary.hpp"
#include "desktop/foundation/property_list_nesting.hpp"

#include <charconv>
#include <stdexcept>
#include <string>

namespace desktop::foundation {
namespace {

struct Malformed : std::runtime_error {
    Malformed() : std::runtime_error("malformed property list") {}
};

/// A number in escapes: how many of the characters are its digits, and its value.
struct EscapedNumber {
    std::size_t digits = 0;
    unsigned value = 0;

    EscapedNumber(std::u16string_view text, std::size_t most, int base) {
        std::string ascii;
        for (const char16_t unit : text.substr(0, most)) {
            ascii += unit < 0x80 ? static_cast<char>(unit) : ' ';
        }
        const char* const end = ascii.data() + ascii.size();
        digits = static_cast<std::size_t>(std::from_chars(ascii.data(), end, value, base).ptr -
                                          ascii.data());
    }
};

/// A byte of the encoding of old lists, by GNUstep.
std::u16string nextStep(unsigned byte) {
    constexpr unsigned long nextStepEncoding = 2;
    const char character = static_cast<char>(byte);
    return ns::String::make<"initWithBytes:length:encoding:">(static_cast<const void*>(&character),
                                                              1UL, nextStepEncoding)
        .utf16();
}

/// Appends what stands behind a backslash and gives how long that was.
std::size_t appendEscaped(std::u16string_view text, std::u16string& result) {
    constexpr std::u16string_view letters = u"abfnrtv";
    constexpr std::u16string_view meanings = u"\a\b\f\n\r\t\v";
    if (const EscapedNumber octal(text, 3, 8); octal.digits > 0) {
        result += nextStep(octal.value & 0xFFU);
        return octal.digits;
    }
    if (text.starts_with(u'U')) {
        const EscapedNumber unit(text.substr(1), 4, 16);
        result += static_cast<char16_t>(unit.value);
        return 1 + unit.digits;
    }
    const std::size_t letter = letters.find(text[0]);
    result += letter == letters.npos ? text[0] : meanings[letter];
    return 1;
}

std::u16string unescaped(std::u16string_view text) {
    std::u16string result;
    while (!text.empty()) {
        const std::size_t plain = std::min(text.find(u'\\'), text.size());
        result += text.substr(0, plain);
        text.remove_prefix(std::min(plain + 1, text.size()));
        text.remove_prefix(text.empty() ? 0 : appendEscaped(text, result));
    }
    return result;
}

/// Whether a quoted text ends with its quotation mark, which no backslash takes.
bool isClosed(std::string_view quoted) {
    const std::size_t content = quoted.size() - 1;
    const std::size_t last = quoted.substr(0, content).find_last_not_of('\\');
    const std::size_t slashes = content - 1 - std::min(last, content - 1);
    return content > 0 && quoted.back() == quoted.front() && slashes % 2 == 0;
}

class OldListReader {
public:
    explicit OldListReader(std::string_view text) : rest_(text) {}

    objc::Object read() {
        skipSpace();
        if (rest_.empty()) {
            return ns::MutableDictionary::make();
        }
        const std::string_view start = rest_;
        if (const objc::Object list = value(); isAtEnd()) {
            return list;
        }
        rest_ = start;
        return entriesUpTo('\0');
    }

private:
    bool isAtEnd() {
        skipSpace();
        return rest_.empty();
    }

    /// White space and comments.
    void skipSpace() {
        for (;;) {
            const bool isComment = rest_.starts_with("//") || rest_.starts_with("/*");
            const std::size_t space = isComment ? tokenLength(rest_) : spaceLength();
            if (space == 0) {
                return;
            }
            rest_.remove_prefix(space);
        }
    }
    [[nodiscard]] std::size_t spaceLength() const {
        const bool isSeparator = rest_.starts_with("\u2028") || rest_.starts_with("\u2029");
        return isSeparator ? 3 : std::min(rest_.find_first_not_of(" \t\n\v\f\r"), rest_.size());
    }

    bool skip(char character) {
        skipSpace();
        const bool found = rest_.starts_with(character);
        rest_.remove_prefix(found ? 1 : 0);
        return found;
    }
    void expect(char character) {
        if (!skip(character)) {
            throw Malformed();
        }
    }

    objc::Object value() {
        return skip('{') ? entriesUpTo('}') : skip('(') ? elements() : skip('<') ? bytes() : text();
    }

    /// Zero: up to the end of the text.
    objc::Object entriesUpTo(char end) {
        const auto entries = ns::MutableDictionary::make();
        while (end == '\0' ? !isAtEnd() : !skip(end)) {
            const ns::String key = text();
            entries.set(skip('=') ? value() : objc::Object(key), key);
            expect(';');
        }
        return entries;
    }

    objc::Object elements() {
        const auto list = ns::MutableArray::make();
        while (!skip(')')) {
            list.add(value());
            if (!skip(',')) {
                expect(')');
                break;
            }
        }
        return list;
    }

    objc::Object bytes() {
        std::string result;
        while (!skip('>')) {
            unsigned byte = 0;
            const char* const digits = rest_.data();
            if (rest_.size() < 2 ||
                std::from_chars(digits, digits + 2, byte, 16).ptr != digits + 2) {
                throw Malformed();
            }
            result += static_cast<char>(byte);
            rest_.remove_prefix(2);
        }
        return ns::Data::from(result);
    }

    ns::String text() {
        skipSpace();
        const std::string_view token = rest_.substr(0, tokenLength(rest_));
        const bool isQuoted = token.starts_with('"') || token.starts_with('\'');
        if (token.empty() || (isQuoted && !isClosed(token))) {
            throw Malformed();
        }
        rest_.remove_prefix(token.size());
        const auto plain =
            ns::String::fromUtf8(isQuoted ? token.substr(1, token.size() - 2) : token);
        if (!plain) {
            throw Malformed();
        }
        return isQuoted ? ns::String::from(unescaped(plain.utf16())) : plain;
    }

    std::string_view rest_;
};

} // namespace

objc::Object oldPropertyList(std::string_view text) {
    try {
        return OldListReader(text).read();
    } catch (const Malformed&) {
        return nullptr;
    }
}

} // namespace desktop::foundation
