// Text forms of property lists that GNUstep does not know.
#pragma once

#include <string>
#include <string_view>

namespace desktop::foundation {

/// The same property list as GNUstep reads it, for bytes that it does not: UTF-16 and a byte order
/// mark become plain UTF-8, XML gets its declaration and its outermost element, and old text gets
/// the braces that strings files leave out.
[[nodiscard]] std::string usualForm(std::string_view document);

} // namespace desktop::foundation
