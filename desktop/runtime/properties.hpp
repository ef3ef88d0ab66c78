// The properties that classes made at run time have declared.
#pragma once

#include "bindings/objc/runtime.hpp"

#include <deque>
#include <string>

namespace desktop {

/// A property as the runtime knows it; `attributes` in the runtime's notation ("T@,C,N").
struct DeclaredProperty {
    std::string name;
    std::string attributes;
};

/// The class's own properties, in the order in which they were declared. Any thread.
[[nodiscard]] std::deque<DeclaredProperty> declaredProperties(Class cls);

} // namespace desktop
