// NSThread.
#pragma once

#include "bindings/objc/kind.hpp"

namespace ns {

struct Thread : objc::Kind<Thread, "NSThread"> {
    using Kind::Kind;

    static Thread currentThread() { return sendClass<"currentThread", Thread>(); }
    static bool isMainThread() { return sendClass<"isMainThread", bool>(); }
};

} // namespace ns
