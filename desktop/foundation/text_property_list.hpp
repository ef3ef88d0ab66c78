// Text forms of property lists that GNUstep does not know.
#pragma once

#include <string>
#include <string_view>

namespace desktop::foundation {

/// Text in UTF-8 or, with a byte order mark, UTF-16 as UTF-8 without the mark.
[[nodiscard]] std::string inUtf8(std::string_view document);

/// The same property list as GNUstep reads it, for UTF-8 text that it does not: XML gets its
/// declaration and its outermost element; old text gets the braces that strings files leave out,
/// and double quotation marks for single ones.
[[nodiscard]] std::string usualForm(std::string_view text);

} // namespace desktop::foundation
