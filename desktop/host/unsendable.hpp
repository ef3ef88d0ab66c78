// Messages that no JSON can be written for.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace desktop::host {

/// Why a message of that name cannot be sent, which its types do not tell; nothing when it can.
[[nodiscard]] std::optional<std::string> whyUnsendable(std::string_view selector);

} // namespace desktop::host
