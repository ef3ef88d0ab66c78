// URLs as phones make them, where GNUstep does otherwise.
#pragma once

#include "bindings/foundation/url.hpp"

#include <string>
#include <string_view>

namespace desktop::foundation {

/// A query may follow the host without a slash between them: "app://search?q=1". An empty text by
/// itself makes no URL. `URLWithString:` and `initWithString:` do not call each other. Once, before
/// any library is loaded. Main thread.
void installUrls();

/// The text of the URL of the file at an absolute path (UTF-8).
[[nodiscard]] std::string fileUrlText(std::string_view path);

/// The path of a file's URL (UTF-8); empty for others and nil.
[[nodiscard]] std::string filePath(ns::Url url);

/// The URL of that text (UTF-8), autoreleased; nil when it is none.
[[nodiscard]] ns::Url urlWithText(std::string_view text);

} // namespace desktop::foundation
