// Percent encoding where Foundation differs from the phone's.
#pragma once

#include "bindings/foundation/string.hpp"

#include <string>
#include <string_view>

namespace desktop::foundation {

/// The UTF-8 text with %XX for each byte that is not ASCII; ASCII stays as it is.
[[nodiscard]] std::string percentEncodedBeyondAscii(std::string_view text);

/// The UTF-8 path with %XX for each byte that the path of a URL cannot hold.
[[nodiscard]] std::string percentEncodedPath(std::string_view path);

/// Whether two hexadecimal digits follow each percent sign.
[[nodiscard]] bool isPercentEncoded(std::u16string_view text);

/// From now on, removing a broken encoding answers nil.
void installPercentEncoding();

} // namespace desktop::foundation
