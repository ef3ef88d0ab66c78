// Character data of XML: references and CDATA sections.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace wentra::preferences {

struct XmlReference {
    char32_t character = 0;
    std::size_t length = 0; ///< bytes of the reference, 0 when it is malformed
};

/// The reference `text` begins with: one of the five named entities or a character's number.
XmlReference readXmlReference(std::string_view text);

inline constexpr std::string_view sectionStart = "<![CDATA[";
inline constexpr std::string_view sectionEnd = "]]>";

/// Replaces the references and CDATA sections of well-formed character data by what they stand for.
std::string unescapedXml(std::string_view text);

} // namespace wentra::preferences
