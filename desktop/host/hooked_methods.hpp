// Which methods a library has put others in place of.
#pragma once

#include "bindings/objc/runtime.hpp"

#include <string>
#include <vector>

namespace desktop::host {

/// Remembers the methods of all classes of views, and of those that they inherit from, as they are
/// before a library is loaded. Main thread, once.
void rememberMethods();

/// The methods of a view's class that are different now, its own first: "UILabel setText:". A
/// method that a class only inherited and now has itself is one of them; one that no class had, and
/// all of a class that came later, are none. Main thread.
[[nodiscard]] std::vector<std::string> hookedMethods(Class cls);

} // namespace desktop::host
