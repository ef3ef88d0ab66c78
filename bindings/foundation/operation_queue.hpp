// NSOperationQueue.
#pragma once

#include "bindings/objc/kind.hpp"

namespace ns {

struct OperationQueue : objc::Kind<OperationQueue, "NSOperationQueue"> {
    using Kind::Kind;

    static OperationQueue mainQueue() { return sendClass<"mainQueue", OperationQueue>(); }
};

} // namespace ns
