// Property lists as text with braces, which NeXTSTEP wrote; strings files are such, too.
#pragma once

#include "bindings/objc/object.hpp"

#include <string_view>

namespace desktop::foundation {

/// The mutable collections and texts that the UTF-8 text holds; nil when it is malformed. As on the
/// phone, entries without braces around them are a dictionary, and so is nothing at all. GNUstep's
/// own reader loses escapes of few digits and knows no single quotation marks. Lists must not be
/// nested too deeply.
[[nodiscard]] objc::Object oldPropertyList(std::string_view text);

} // namespace desktop::foundation
