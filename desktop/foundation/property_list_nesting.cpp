// Counts what opens and what closes, without recursion.
#include "desktop/foundation/property_list_nesting.hpp"

#include "desktop/foundation/binary_nesting.hpp"
#include "desktop/foundation/property_list.hpp"

#include <algorithm>

namespace desktop::foundation {
namespace {

constexpr std::size_t elementsAround = 2; // the outermost one, and the innermost value's

/// Where the text goes on behind the first such mark at or after `from`.
std::size_t behind(std::string_view mark, std::string_view text, std::size_t from) {
    const std::size_t place = text.find(mark, from);
    return place == text.npos ? text.size() : place + mark.size();
}

std::size_t quotedLength(std::string_view text) {
    std::size_t at = 1;
    while (at < text.size() && text[at] != text[0]) {
        at += text[at] == '\\' ? 2U : 1U;
    }
    return std::min(at + 1, text.size());
}

bool isPlain(char character) {
    const char lower = static_cast<char>(character | 0x20);
    constexpr std::string_view signs = "_$/:.-";
    return (character >= '0' && character <= '9') || (lower >= 'a' && lower <= 'z') ||
           signs.find(character) != signs.npos;
}

bool isOldTextTooDeep(std::string_view text) {
    std::size_t depth = 0;
    while (!text.empty() && depth <= deepestNesting) {
        const bool opens = text[0] == '{' || text[0] == '(';
        const bool closes = (text[0] == '}' || text[0] == ')') && depth > 0;
        depth += opens ? 1U : 0U;
        depth -= closes ? 1U : 0U;
        text.remove_prefix(std::max<std::size_t>(tokenLength(text), 1));
    }
    return depth > deepestNesting;
}

/// What stands between angle brackets, those included.
std::size_t tagLength(std::string_view xml) {
    return xml.starts_with("<!--")        ? behind("-->", xml, 4)
           : xml.starts_with("<![CDATA[") ? behind("]]>", xml, 0)
           : xml.starts_with("<?")        ? behind("?>", xml, 0)
                                          : behind(">", xml, 0);
}

bool isXmlTooDeep(std::string_view xml) {
    std::size_t depth = 0;
    for (std::size_t at = xml.find('<'); at != xml.npos; at = xml.find('<', at)) {
        const std::string_view tag = xml.substr(at, tagLength(xml.substr(at)));
        const bool isElement = !tag.starts_with("<!") && !tag.starts_with("<?");
        const bool closes = tag.starts_with("</");
        depth += isElement && !closes && !tag.ends_with("/>") ? 1U : 0U;
        depth -= closes && depth > 0 ? 1U : 0U;
        if (depth > deepestNesting + elementsAround) {
            return true;
        }
        at += tag.size();
    }
    return false;
}

} // namespace

std::size_t tokenLength(std::string_view oldText) {
    if (oldText.starts_with("//")) {
        return std::min(oldText.find_first_of("\r\n"), oldText.size());
    }
    if (oldText.starts_with("/*")) {
        return behind("*/", oldText, 2);
    }
    if (oldText.starts_with('"') || oldText.starts_with('\'')) {
        return quotedLength(oldText);
    }
    const auto* const end = std::ranges::find_if_not(oldText, isPlain);
    return static_cast<std::size_t>(end - oldText.begin());
}

bool isNestedTooDeeply(std::string_view document) {
    if (document.starts_with("bplist")) {
        return isBinaryTooDeep(document);
    }
    const std::size_t start = document.find_first_not_of(" \t\r\n");
    return start != document.npos && document[start] == '<' ? isXmlTooDeep(document)
                                                            : isOldTextTooDeep(document);
}

} // namespace desktop::foundation
