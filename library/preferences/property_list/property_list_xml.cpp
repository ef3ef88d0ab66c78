// A single pass over an XML property list, checking all of it and keeping only the top entries.
#include "library/preferences/property_list/property_list_xml.hpp"

#include "library/common/byte_word.hpp"
#include "library/common/text_encoding.hpp"
#include "library/preferences/property_list/decimal_number.hpp"
#include "library/preferences/property_list/xml_text.hpp"

#include <array>
#include <bit>
#include <cstdint>
#include <cstring>
#include <optional>

namespace wentra::preferences {
namespace {

constexpr std::uint64_t eachByte(unsigned char byte) { return 0x0101010101010101U * byte; }

// Sets the high bit of the first byte equal to `byte`; bits above that one mean nothing.
constexpr std::uint64_t matches(std::uint64_t word, unsigned char byte) {
    const std::uint64_t difference = word ^ eachByte(byte);
    return (difference - eachByte(0x01)) & ~difference & eachByte(0x80);
}

constexpr bool isXmlSpace(char character) {
    constexpr std::uint64_t spaces = 1ULL << ' ' | 1ULL << '\n' | 1ULL << '\t' | 1ULL << '\r';
    const auto code = static_cast<unsigned char>(character);
    return code <= ' ' && (spaces >> code & 1) != 0;
}

constexpr bool isBase64(char character) {
    return (character >= 'A' && character <= 'Z') || (character >= 'a' && character <= 'z') ||
           (character >= '0' && character <= '9') || character == '+' || character == '/';
}

bool isData(std::string_view text) {
    bool padded = false;
    for (const char character : text) {
        if (character == '=') {
            padded = true;
        } else if (!isXmlSpace(character) && (padded || !isBase64(character))) {
            return false;
        }
    }
    return true;
}

bool isDate(std::string_view text) {
    constexpr std::string_view form = "0000-00-00T00:00:00Z";
    if (text.size() != form.size()) {
        return false;
    }
    for (std::size_t index = 0; index < form.size(); ++index) {
        const bool digit = text[index] >= '0' && text[index] <= '9';
        if (form[index] == '0' ? !digit : text[index] != form[index]) {
            return false;
        }
    }
    return true;
}

class XmlReader {
public:
    XmlReader(std::string_view document, EntrySink& sink)
        : at_(document.data()), end_(at_ + document.size()), sink_(sink) {}

    bool read();

private:
    enum class Container : unsigned char { dictionary, array };
    enum class Form { malformed, open, empty };

    static constexpr std::size_t deepest = 512;

    // Compares past the end too: the padding there equals no character of a literal.
    template <std::size_t Size>
    bool at(const char (&literal)[Size]) const {
        static_assert(Size - 1 <= PaddedBytes::padding);
        return std::memcmp(at_, literal, Size - 1) == 0;
    }

    template <std::size_t Size>
    bool skip(const char (&literal)[Size]) {
        if (!at(literal)) {
            return false;
        }
        at_ += Size - 1;
        return true;
    }

    std::string_view rest() const { return {at_, static_cast<std::size_t>(end_ - at_)}; }

    bool skipPast(std::string_view text) {
        const std::size_t place = rest().find(text);
        if (place == std::string_view::npos) {
            return false;
        }
        at_ += place + text.size();
        return true;
    }

    void skipSpace() {
        while (isXmlSpace(*at_)) {
            ++at_;
        }
    }

    // White space, comments and processing instructions, the XML declaration among these.
    bool miscellaneous() {
        skipSpace();
        return (at_[1] != '!' && at_[1] != '?') || commentsAndInstructions();
    }

    bool commentsAndInstructions();
    bool documentType();

    Form finishTag() {
        if (skip(">")) {
            return Form::open;
        }
        if (skip("/>")) {
            return Form::empty;
        }
        return isXmlSpace(*at_) ? finishTagWithAttributes() : Form::malformed;
    }

    Form finishTagWithAttributes();

    template <std::size_t Size>
    bool close(const char (&tag)[Size]) {
        if (!skip(tag)) {
            return false;
        }
        skipSpace();
        return skip(">");
    }

    bool contents();
    bool key();
    bool value();

    // Reads the rest of an element that holds character data only, leaving these in content_.
    template <std::size_t Size>
    bool characters(const char (&closingTag)[Size]) {
        content_ = {};
        isEscaped_ = false;
        isAscii_ = true;
        const Form form = finishTag();
        return form == Form::empty || (form == Form::open && text() && close(closingTag));
    }

    template <std::size_t Size>
    bool noCharacters(const char (&closingTag)[Size]) {
        const Form form = finishTag();
        return form == Form::empty || (form == Form::open && close(closingTag));
    }

    bool text();
    bool skipReference();
    bool isWellFormed() const { return isAscii_ || isUtf8(content_); }

    bool report(Value value) {
        if (depth_ == 1 && isWanted_) {
            sink_.assign(value);
        }
        return true;
    }

    bool reportNumber(std::optional<double> number) { return number && report(Value(*number)); }

    bool reportText() {
        return isWellFormed() &&
               report({isEscaped_ ? Value::Kind::escapedText : Value::Kind::utf8Text, content_});
    }

    bool container(Container kind);

    const char* at_;
    const char* end_;
    EntrySink& sink_;

    std::string_view content_;
    bool isEscaped_ = false;
    bool isAscii_ = true;
    bool isWanted_ = false;
    std::array<Container, deepest> open_;
    std::size_t depth_ = 0;
};

bool XmlReader::read() {
    if (!miscellaneous() || (at("<!DOCTYPE") && !(documentType() && miscellaneous()))) {
        return false;
    }
    const bool wrapped = skip("<plist");
    if (wrapped && (finishTag() != Form::open || !miscellaneous())) {
        return false;
    }
    if (!skip("<dict") || !container(Container::dictionary) || !contents() || !miscellaneous()) {
        return false;
    }
    if (wrapped && (!close("</plist") || !miscellaneous())) {
        return false;
    }
    return at_ == end_;
}

bool XmlReader::commentsAndInstructions() {
    while (*at_ == '<') {
        if (skip("<?")) {
            if (!skipPast("?>")) {
                return false;
            }
        } else if (skip("<!--")) {
            if (!skipPast("-->")) {
                return false;
            }
        } else {
            break;
        }
        skipSpace();
    }
    return true;
}

bool XmlReader::documentType() {
    for (; at_ < end_; ++at_) {
        if (*at_ == '[') {
            return false;
        }
        if (skip(">")) {
            return true;
        }
        if (*at_ == '"' || *at_ == '\'') {
            at_ = static_cast<const char*>(
                std::memchr(at_ + 1, *at_, static_cast<std::size_t>(end_ - at_ - 1)));
            if (at_ == nullptr) {
                return false;
            }
        }
    }
    return false;
}

XmlReader::Form XmlReader::finishTagWithAttributes() {
    for (;;) {
        skipSpace();
        if (skip(">")) {
            return Form::open;
        }
        if (skip("/>")) {
            return Form::empty;
        }
        const std::size_t name = rest().find_first_of("=<>/\"'");
        if (name == 0 || name == std::string_view::npos) {
            return Form::malformed;
        }
        at_ += name;
        if (!skip("=")) {
            return Form::malformed;
        }
        skipSpace();
        if (*at_ != '"' && *at_ != '\'') {
            return Form::malformed;
        }
        const std::size_t attributeEnd = rest().find(*at_, 1);
        if (attributeEnd == std::string_view::npos) {
            return Form::malformed;
        }
        at_ += attributeEnd + 1;
    }
}

// What the open containers hold, from the top dictionary's first key to its end.
bool XmlReader::contents() {
    while (depth_ > 0) {
        if (!miscellaneous()) {
            return false;
        }
        const bool inDictionary = open_[depth_ - 1] == Container::dictionary;
        if (at("</")) {
            if (!(inDictionary ? close("</dict") : close("</array"))) {
                return false;
            }
            --depth_;
            continue;
        }
        if (inDictionary && !(key() && miscellaneous())) {
            return false;
        }
        if (!value()) {
            return false;
        }
    }
    return true;
}

bool XmlReader::key() {
    if (!skip("<key") || !characters("</key")) {
        return false;
    }
    if (depth_ == 1) {
        isWanted_ = sink_.select(isEscaped_ ? unescapedXml(content_) : content_, Encoding::utf8);
    }
    return (isWanted_ && !isEscaped_) || isWellFormed();
}

bool XmlReader::value() {
    // The second character tells most elements apart; the rest of the tag is still compared.
    switch (at_[1]) {
    case 't':
        return skip("<true") && noCharacters("</true") && report(Value(1));
    case 'f':
        return skip("<false") && noCharacters("</false") && report(Value(0));
    case 's':
        return skip("<string") && characters("</string") && reportText();
    case 'i':
        return skip("<integer") && characters("</integer") && reportNumber(integerValue(content_));
    case 'r':
        return skip("<real") && characters("</real") && reportNumber(realValue(content_));
    case 'a':
        return skip("<array") && report({}) && container(Container::array);
    case 'd':
        if (skip("<dict")) {
            return report({}) && container(Container::dictionary);
        }
        if (skip("<data")) {
            return characters("</data") && isData(content_) && report({});
        }
        return skip("<date") && characters("</date") && isDate(content_) && report({});
    default:
        return false;
    }
}

bool XmlReader::container(Container kind) {
    const Form form = finishTag();
    if (form != Form::open) {
        return form == Form::empty;
    }
    if (depth_ == deepest) {
        return false;
    }
    open_[depth_++] = kind;
    return true;
}

// Character data up to the next tag. Eight bytes at a time are searched for markup.
bool XmlReader::text() {
    const char* begin = at_;
    std::uint64_t seen = 0;
    while (at_ < end_) {
        const auto word = littleEndian<std::uint64_t>(at_);
        const std::uint64_t markup = matches(word, '<') | matches(word, '&');
        if (markup == 0) {
            seen |= word;
            at_ += 8;
            continue;
        }
        seen |= word & ((markup & -markup) - 1);
        at_ += std::countr_zero(markup) / 8;
        if (*at_ == '<' && !at("<![CDATA[")) {
            content_ = {begin, static_cast<std::size_t>(at_ - begin)};
            isAscii_ = (seen & eachByte(0x80)) == 0;
            return true;
        }
        if (!(*at_ == '&' ? skipReference() : skipPast(sectionEnd))) {
            return false;
        }
        isEscaped_ = true;
        seen = eachByte(0x80); // what was skipped may be no ASCII
    }
    return false;
}

bool XmlReader::skipReference() {
    const std::size_t length = readXmlReference(rest()).length;
    at_ += length;
    return length != 0;
}

} // namespace

bool readXmlPropertyList(const PaddedBytes& document, EntrySink& sink) {
    return XmlReader(document.view(), sink).read();
}

} // namespace wentra::preferences
