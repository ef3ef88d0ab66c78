// Property lists as XML, every character included.
#pragma once

#include "bindings/objc/object.hpp"

#include <string>

namespace desktop::foundation {

/// The list as the phone writes it, keys in ascending order. `list` holds property-list values
/// only. Lone surrogates become U+FFFD; control characters, which XML cannot hold, are left out.
[[nodiscard]] std::string xmlPropertyList(objc::Object list);

} // namespace desktop::foundation
