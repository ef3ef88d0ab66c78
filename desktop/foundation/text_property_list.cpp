// Adds what is missing.
#include "desktop/foundation/text_property_list.hpp"

#include "desktop/foundation/text.hpp"

#include <algorithm>

namespace desktop::foundation {
namespace {

using namespace std::string_view_literals;

std::string fromUtf16(std::string_view bytes, bool isBigEndian) {
    std::u16string text;
    for (std::size_t at = 0; at + 1 < bytes.size(); at += 2) {
        const auto first = static_cast<unsigned char>(bytes[at]);
        const auto second = static_cast<unsigned char>(bytes[at + 1]);
        text += static_cast<char16_t>(isBigEndian ? first << 8 | second : second << 8 | first);
    }
    return toUtf8(text);
}

/// What follows XML's declaration, in whichever encoding that says.
std::string withoutDeclaration(const std::string& xml) {
    return xml.starts_with("<?xml") ? xml.substr(std::min(xml.find("?>"), xml.size() - 2) + 2)
                                    : xml;
}

} // namespace

bool isXml(std::string_view text) {
    const std::size_t start = text.find_first_not_of(" \t\r\n");
    return start != text.npos && text[start] == '<';
}

std::string inUtf8(std::string_view document) {
    if (document.starts_with("\xFE\xFF"sv) || document.starts_with("\xFF\xFE"sv)) {
        return fromUtf16(document.substr(2), document.starts_with('\xFE'));
    }
    return std::string(document.substr(document.starts_with("\xEF\xBB\xBF"sv) ? 3 : 0));
}

std::string usualXml(std::string_view text) {
    const std::string content =
        withoutDeclaration(std::string(text.substr(std::min(text.find('<'), text.size()))));
    const bool isWhole = content.find("<plist") != content.npos;
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n" +
           (isWhole ? content : "<plist version=\"1.0\">" + content + "</plist>");
}

} // namespace desktop::foundation
