// Names and values of headers as texts.
#pragma once

#include <string_view>

namespace desktop::network {

/// Whether two names are one: case does not count.
[[nodiscard]] bool isSameName(std::string_view one, std::string_view other);

/// Without the white space around it. A view of the text.
[[nodiscard]] std::string_view trimmed(std::string_view text);

} // namespace desktop::network
