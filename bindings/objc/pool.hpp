// An autorelease pool for a scope.
#pragma once

#include "bindings/objc/kind.hpp"

namespace objc {

/// Objects autoreleased in the scope on this thread are released at its end.
class Pool {
public:
    Pool() : pool_(objc::send<"new", id>(object(objc_getClass("NSAutoreleasePool")))) {}
    Pool(const Pool&) = delete;
    Pool& operator=(const Pool&) = delete;
    ~Pool() { objc::send<"drain">(pool_); }

private:
    id pool_;
};

} // namespace objc
