// NSNull: the object that stands for nothing in a collection.
#pragma once

#include "bindings/objc/kind.hpp"

namespace ns {

struct Null : objc::Kind<Null, "NSNull"> {
    using Kind::Kind;

    static Null null() { return sendClass<"null", Null>(); }
};

} // namespace ns
