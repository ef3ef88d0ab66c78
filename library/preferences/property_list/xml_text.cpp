// Resolves the references and CDATA sections of XML's character data.
#include "library/preferences/property_list/xml_text.hpp"

#include "library/common/text_encoding.hpp"

#include <charconv>
#include <cstdint>

namespace wentra::preferences {
namespace {

struct NamedCharacter {
    std::string_view reference;
    char character;
};

constexpr NamedCharacter namedCharacters[] = {
    {"&amp;", '&'}, {"&lt;", '<'}, {"&gt;", '>'}, {"&quot;", '"'}, {"&apos;", '\''},
};

constexpr bool isCharacter(std::uint32_t code) {
    return code != 0 && code <= 0x10FFFF && (code < 0xD800 || code > 0xDFFF);
}

XmlReference readNumericReference(std::string_view text) {
    const bool hexadecimal = text.starts_with("&#x");
    const char* digits = text.data() + (hexadecimal ? 3 : 2);
    const char* textEnd = text.data() + text.size();
    std::uint32_t code = 0;
    const auto [end, error] = std::from_chars(digits, textEnd, code, hexadecimal ? 16 : 10);
    if (error != std::errc{} || end == textEnd || *end != ';' || !isCharacter(code)) {
        return {};
    }
    return {char32_t{code}, static_cast<std::size_t>(end + 1 - text.data())};
}

} // namespace

XmlReference readXmlReference(std::string_view text) {
    if (text.starts_with("&#")) {
        return readNumericReference(text);
    }
    for (const auto& [reference, character] : namedCharacters) {
        if (text.starts_with(reference)) {
            return {static_cast<unsigned char>(character), reference.size()};
        }
    }
    return {};
}

std::string unescapedXml(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    while (!text.empty()) {
        const std::size_t plain = std::min(text.find_first_of("&<"), text.size());
        result.append(text.substr(0, plain));
        text.remove_prefix(plain);
        if (text.starts_with('&')) {
            const XmlReference reference = readXmlReference(text);
            appendUtf8(reference.character, result);
            text.remove_prefix(reference.length);
        } else if (text.starts_with('<')) {
            const std::size_t end = text.find(sectionEnd);
            result.append(text.substr(sectionStart.size(), end - sectionStart.size()));
            text.remove_prefix(end + sectionEnd.size());
        }
    }
    return result;
}

} // namespace wentra::preferences
