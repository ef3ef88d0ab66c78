// Comparing and cutting.
#include "desktop/network/header_text.hpp"

#include <strings.h>

namespace desktop::network {

bool isSameName(std::string_view one, std::string_view other) {
    return one.size() == other.size() && strncasecmp(one.data(), other.data(), one.size()) == 0;
}

std::string_view trimmed(std::string_view text) {
    constexpr std::string_view space = " \t\r\n";
    const std::size_t first = text.find_first_not_of(space);
    return first == text.npos ? std::string_view()
                              : text.substr(first, text.find_last_not_of(space) - first + 1);
}

} // namespace desktop::network
