// What classes whose objects never change have in common.
#pragma once

#include "bindings/objc/method.hpp"

namespace desktop {

inline id ownedOnceMore(id self, SEL, void*) { return objc_retain(self); }

/// A copy of an object that never changes is the object itself, owned once more.
constexpr objc::MethodRow copyIsSelf() {
    return {"copyWithZone:", &objc::placed<&ownedOnceMore>, "@@:^v"};
}

} // namespace desktop
