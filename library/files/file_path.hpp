// Paths as the system has them, bytes, and as the interface has them, text.
#pragma once

#include <string>
#include <string_view>

namespace wentra::files {

// File systems take names that are no UTF-8; those must lead back to the very file that they are
// the name of. Each byte that is not part of well-formed UTF-8 is a lone surrogate in the text
// (U+DC80 to U+DCFF), which no UTF-8 gives.

/// The text of a path.
[[nodiscard]] std::u16string textOfPath(std::string_view path);

/// The path of a text. Empty, which is the path of nothing, for a text with a NUL, which no path
/// has.
[[nodiscard]] std::string pathOfText(std::u16string_view text);

/// The entry of that name in the folder; of nothing, nothing.
[[nodiscard]] std::string joined(std::string_view folder, std::string_view name);

// The parts of a path as Foundation has them; slashes at the end do not count.

/// "c.txt" of "/a/c.txt", "/" of "/".
[[nodiscard]] std::string_view lastComponent(std::string_view path);

/// "/a" of "/a/c.txt", "/" of "/a" and of "/".
[[nodiscard]] std::string_view parentOf(std::string_view path);

/// What stands behind the name's last full stop; empty where that begins or ends the name.
[[nodiscard]] std::string_view extensionOf(std::string_view path);

/// The extension in small letters (ASCII).
[[nodiscard]] std::string kindOf(std::string_view path);

/// The last component without its extension and its full stop.
[[nodiscard]] std::string_view baseOf(std::string_view path);

} // namespace wentra::files
