// Adds what is missing.
#include "desktop/foundation/text_property_list.hpp"

#include "desktop/foundation/property_list_nesting.hpp"
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

std::string usualXml(const std::string& xml) {
    const std::string content = withoutDeclaration(xml);
    const bool isWhole = content.find("<plist") != content.npos;
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n" +
           (isWhole ? content : "<plist version=\"1.0\">" + content + "</plist>");
}

bool isInSingleQuotes(std::string_view token) {
    return token.size() > 1 && token.starts_with('\'') && token.ends_with('\'');
}

/// Between single quotation marks a double one is a character as any other.
std::string inDoubleQuotes(std::string_view quoted) {
    const std::string_view content = quoted.substr(1, quoted.size() - 2);
    std::string result = "\"";
    for (std::size_t at = 0; at < content.size(); ++at) {
        if (content[at] == '\\' && at + 1 < content.size()) {
            result += content[at++];
        } else if (content[at] == '"') {
            result += '\\';
        }
        result += content[at];
    }
    return result + "\"";
}

std::string usualOldText(std::string_view text) {
    std::string result;
    while (!text.empty()) {
        const std::string_view token = text.substr(0, std::max<std::size_t>(tokenLength(text), 1));
        result += isInSingleQuotes(token) ? inDoubleQuotes(token) : std::string(token);
        text.remove_prefix(token.size());
    }
    return result;
}

} // namespace

std::string inUtf8(std::string_view document) {
    if (document.starts_with("\xFE\xFF"sv) || document.starts_with("\xFF\xFE"sv)) {
        return fromUtf16(document.substr(2), document.starts_with('\xFE'));
    }
    return std::string(document.substr(document.starts_with("\xEF\xBB\xBF"sv) ? 3 : 0));
}

std::string usualForm(std::string_view text) {
    const std::size_t start = text.find_first_not_of(" \t\r\n");
    if (start != text.npos && text[start] == '<') {
        return usualXml(std::string(text.substr(start)));
    }
    const std::string list = usualOldText(text);
    return start != text.npos && text[start] == '{' ? list : "{" + list + "\n}";
}

} // namespace desktop::foundation
