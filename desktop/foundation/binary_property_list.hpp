// Property lists in the binary format.
#pragma once

#include "bindings/objc/object.hpp"

#include <string>

namespace desktop::foundation {

/// The list as the phone writes it, each text once; in time that grows with the list's size.
/// `list` holds property-list values only, and no container holds itself.
[[nodiscard]] std::string binaryPropertyList(objc::Object list);

} // namespace desktop::foundation
