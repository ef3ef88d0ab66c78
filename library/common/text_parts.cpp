// Joins and trims.
#include "library/common/text_parts.hpp"

namespace wentra {

std::u16string joined(std::span<const std::u16string> parts, std::u16string_view separator) {
    std::u16string text;
    for (const std::u16string& part : parts) {
        if (&part != parts.data()) {
            text += separator;
        }
        text += part;
    }
    return text;
}

std::u16string_view trimmedAtStart(std::u16string_view text) {
    const auto* const start = std::ranges::find_if_not(text, isWhiteSpace);
    return text.substr(static_cast<std::size_t>(start - text.begin()));
}

} // namespace wentra
