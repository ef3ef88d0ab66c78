// Taking a query apart.
#include "desktop/services/query.hpp"

#include <algorithm>
#include <charconv>

namespace desktop::services {
namespace {

/// What is before the separator; `text` keeps what is behind it.
std::string_view cutOff(std::string_view& text, char separator) {
    const std::string_view head = text.substr(0, text.find(separator));
    text.remove_prefix(head.size() == text.size() ? head.size() : head.size() + 1);
    return head;
}

std::string decoded(std::string_view text) {
    std::string spaced(text);
    std::ranges::replace(spaced, '+', ' ');
    return percentDecoded(spaced);
}

} // namespace

std::string percentDecoded(std::string_view text) {
    constexpr std::size_t digits = 2;
    std::string bytes;
    for (std::size_t i = 0; i < text.size(); ++i) {
        unsigned char byte = 0;
        const char* const first = text.data() + i + 1;
        if (text[i] == '%' && i + digits < text.size() &&
            std::from_chars(first, first + digits, byte, 16).ptr == first + digits) {
            bytes += static_cast<char>(byte);
            i += digits;
        } else {
            bytes += text[i];
        }
    }
    return bytes;
}

std::string_view pathOf(std::string_view target) { return cutOff(target, '?'); }

std::map<std::string, std::string> queryOf(std::string_view target) {
    std::map<std::string, std::string> query;
    cutOff(target, '?');
    while (!target.empty()) {
        std::string_view value = cutOff(target, '&');
        const std::string_view name = cutOff(value, '=');
        query[decoded(name)] = decoded(value);
    }
    return query;
}

std::string restBehind(std::string_view target, std::string_view name) {
    cutOff(target, '?');
    while (!target.empty()) {
        if (target.starts_with(name) && target.substr(name.size()).starts_with('=')) {
            return percentDecoded(target.substr(name.size() + 1));
        }
        cutOff(target, '&');
    }
    return {};
}

} // namespace desktop::services
