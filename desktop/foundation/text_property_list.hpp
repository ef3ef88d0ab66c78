// Which text a property list is, and XML that GNUstep does not read.
#pragma once

#include <string>
#include <string_view>

namespace desktop::foundation {

/// Text in UTF-8 or, with a byte order mark, UTF-16 as UTF-8 without the mark.
[[nodiscard]] std::string inUtf8(std::string_view document);

/// Whether the text is XML; else it is an old property list.
[[nodiscard]] bool isXml(std::string_view text);

/// The same list as GNUstep reads it, for XML in UTF-8 that leaves out its declaration or its
/// outermost element.
[[nodiscard]] std::string usualXml(std::string_view text);

} // namespace desktop::foundation
