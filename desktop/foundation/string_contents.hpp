// Where GNUstep's strings keep their text.
#pragma once

#include "bindings/foundation/string.hpp"

#include <string_view>

namespace desktop::foundation {

/// A string of UTF-16 units.
struct UnicodeText : objc::Kind<UnicodeText, "GSUnicodeString", ns::String> {
    using Kind::Kind;
};

/// A string of bytes, each a character of GNUstep's own encoding.
struct ByteText : objc::Kind<ByteText, "GSCString", ns::String> {
    using Kind::Kind;
};

/// Views of the object's own memory, for where messages and a copy would be most of the work.
[[nodiscard]] std::u16string_view unitsOf(UnicodeText text);
[[nodiscard]] std::string_view bytesOf(ByteText text);

} // namespace desktop::foundation
