// Messages that no JSON can be written for.
#pragma once

#include "bindings/objc/runtime.hpp"

#include <optional>
#include <string>
#include <string_view>

namespace desktop::host {

/// Why a message of that name cannot be sent, which its types do not tell; nothing when it can.
[[nodiscard]] std::optional<std::string> whyUnsendable(std::string_view selector);

/// Whether objects of the class are of no use, and not safe to be asked anything, when they come
/// from `init` or `new` alone.
[[nodiscard]] bool needsAnInitialiserOfItsOwn(Class cls);

} // namespace desktop::host
