// Finds the encoding, and converts.
#include "library/preferences/property_list/document_text.hpp"

#include "library/common/text_encoding.hpp"

#include <algorithm>
#include <array>
#include <string>

namespace wentra::preferences {
namespace {

using namespace std::string_view_literals;

enum class Charset { utf8, ascii, latin1, windows1252, unknown };

struct CharsetName {
    std::string_view name;
    Charset charset;
};

constexpr std::array charsetNames{
    CharsetName{"utf-8", Charset::utf8},         CharsetName{"utf8", Charset::utf8},
    CharsetName{"us-ascii", Charset::ascii},     CharsetName{"ascii", Charset::ascii},
    CharsetName{"iso-8859-1", Charset::latin1},  CharsetName{"iso_8859-1", Charset::latin1},
    CharsetName{"latin1", Charset::latin1},      CharsetName{"windows-1252", Charset::windows1252},
    CharsetName{"cp1252", Charset::windows1252},
};

/// What Windows-1252 has from 0x80 to 0x9F, where ISO-8859-1 has control characters.
constexpr std::u16string_view windowsCharacters =
    u"€\u0081‚ƒ„…†‡ˆ‰Š‹Œ\u008DŽ\u008F\u0090‘’“”•–—˜™š›œ\u009DžŸ"sv;

constexpr char lowercase(char character) {
    return character >= 'A' && character <= 'Z' ? static_cast<char>(character | 0x20) : character;
}

Charset charsetNamed(std::string_view name) {
    const auto* const found = std::ranges::find_if(charsetNames, [name](const CharsetName& row) {
        return std::ranges::equal(row.name, name, {}, {}, lowercase);
    });
    return found == charsetNames.end() ? Charset::unknown : found->charset;
}

std::string_view withoutLeadingSpace(std::string_view text) {
    return text.substr(std::min(text.find_first_not_of(" \t\r\n"), text.size()));
}

/// What follows a word and an equals sign between quotation marks; empty when it is not so.
std::string_view quotedAfter(std::string_view word, std::string_view text) {
    const std::size_t place = text.find(word);
    if (place == text.npos) {
        return {};
    }
    text = withoutLeadingSpace(text.substr(place + word.size()));
    if (!text.starts_with('=')) {
        return {};
    }
    text = withoutLeadingSpace(text.substr(1));
    if (!text.starts_with('"') && !text.starts_with('\'')) {
        return {};
    }
    const std::size_t end = text.find(text[0], 1);
    return end == text.npos ? std::string_view() : text.substr(1, end - 1);
}

Charset declaredCharset(std::string_view document) {
    if (!document.starts_with("<?xml")) {
        return Charset::utf8;
    }
    const std::string_view declaration = document.substr(0, document.find("?>"));
    const std::string_view name = quotedAfter("encoding", declaration);
    return name.empty() ? Charset::utf8 : charsetNamed(name);
}

constexpr char32_t character(unsigned char byte, Charset charset) {
    constexpr unsigned char first = 0x80;
    const bool differs =
        charset == Charset::windows1252 && byte >= first && byte < first + windowsCharacters.size();
    return differs ? windowsCharacters[byte - first] : byte;
}

PaddedBytes fromBytes(std::string_view document, Charset charset) {
    std::string utf8;
    for (const char byte : document) {
        appendUtf8(character(static_cast<unsigned char>(byte), charset), utf8);
    }
    return PaddedBytes(std::string_view(utf8));
}

PaddedBytes nothing() { return PaddedBytes("<"sv); }

PaddedBytes fromUtf16(std::string_view utf16, Encoding encoding) {
    return utf16.size() % 2 == 0 ? PaddedBytes(utf8FromUtf16(utf16FromBytes(utf16, encoding)))
                                 : nothing();
}

} // namespace

std::optional<PaddedBytes> inUtf8(std::string_view document) {
    if (document.starts_with("\xFE\xFF")) {
        return fromUtf16(document.substr(2), Encoding::utf16BigEndian);
    }
    if (document.starts_with("\xFF\xFE")) {
        return fromUtf16(document.substr(2), Encoding::utf16LittleEndian);
    }
    if (document.starts_with("\xEF\xBB\xBF")) {
        return PaddedBytes(document.substr(3));
    }
    switch (const Charset charset = declaredCharset(document)) {
    case Charset::utf8:
        return std::nullopt;
    case Charset::latin1:
    case Charset::windows1252:
        return fromBytes(document, charset);
    case Charset::ascii:
        return isAscii(document) ? std::nullopt : std::optional(nothing());
    case Charset::unknown:
        break;
    }
    return nothing();
}

} // namespace wentra::preferences
