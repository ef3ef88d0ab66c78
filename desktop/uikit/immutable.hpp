// What classes whose objects never change have in common.
#pragma once

#include "bindings/objc/method.hpp"

namespace desktop {

/// A copy of an object that never changes is the object itself, owned once more.
inline objc::MethodRow copyIsSelf() {
    constexpr auto copy = [](id self, SEL, void*) -> id { return objc::send<"retain", id>(self); };
    objc::MethodRow row;
    row.selector = "copyWithZone:";
    row.implementation = reinterpret_cast<IMP>(static_cast<id (*)(id, SEL, void*)>(copy));
    row.types = "@@:^v";
    return row;
}

} // namespace desktop
