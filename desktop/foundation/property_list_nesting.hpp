// How deep the collections of a property list lie in one another, before it is read.
#pragma once

#include <string_view>

namespace desktop::foundation {

/// Whether collections in the bytes lie deeper in one another than `deepestNesting`, or in
/// themselves. Text must be UTF-8. Malformed lists are for the reader to find.
[[nodiscard]] bool isNestedTooDeeply(std::string_view document);

/// How long the comment or the text, quoted or not, is that old property list text begins with; 0
/// when it begins with neither.
[[nodiscard]] std::size_t tokenLength(std::string_view oldText);

} // namespace desktop::foundation
