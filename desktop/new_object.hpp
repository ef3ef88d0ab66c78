// What class methods that make objects begin with.
#pragma once

#include "bindings/objc/strong.hpp"

namespace desktop {

/// A new object of the class that the message was sent to, be it a subclass; autoreleased.
template <class Kind>
Kind newObject(Class cls) {
    return objc::Strong<Kind>::adopt(objc::send<"new", Kind>(objc::object(cls))).autoreleased();
}

} // namespace desktop
