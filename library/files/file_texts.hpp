// What a row says of a file.
#pragma once

#include <string>

namespace wentra::files {

/// "1.00 KB", up to GB.
[[nodiscard]] std::string sizeText(double bytes);

/// "0644": the permission bits in octal digits.
[[nodiscard]] std::string permissionsText(unsigned long bits);

} // namespace wentra::files
