// The classes that the arguments of a message have to be of.
#pragma once

#include "bindings/objc/object.hpp"
#include "desktop/host/declared_classes.hpp"
#include "desktop/host/json.hpp"

#include <string>

namespace desktop::host {

/// What the platform's class declares for each argument, as far as it does; for a message that only
/// passes its argument on (`setValue:forKey:`) what the method behind it declares. `arguments` is
/// an array.
[[nodiscard]] std::vector<DeclaredClass>
argumentClasses(objc::Object receiver, const std::string& selector, const Json& arguments);

/// Whether the object is nil or of that class, an array's elements too; of a class that there is
/// not, everything is.
[[nodiscard]] bool isOf(objc::Object object, const DeclaredClass& declared);

} // namespace desktop::host
