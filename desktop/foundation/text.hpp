// Text between the platform's UTF-16 and UTF-8.
#pragma once

#include "bindings/foundation/string.hpp"

#include <string>
#include <string_view>

namespace desktop {

/// The text as UTF-8, each lone surrogate as U+FFFD.
[[nodiscard]] std::string toUtf8(std::u16string_view text);
[[nodiscard]] inline std::string toUtf8(ns::String text) { return toUtf8(text.utf16()); }

} // namespace desktop
