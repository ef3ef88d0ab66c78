// An autorelease pool for a scope.
#pragma once

#include "bindings/objc/runtime.hpp"

namespace objc {

/// Objects autoreleased in the scope on this thread are released at its end.
class Pool {
public:
    Pool() : pool_(objc_autoreleasePoolPush()) {}
    Pool(const Pool&) = delete;
    Pool& operator=(const Pool&) = delete;
    ~Pool() { objc_autoreleasePoolPop(pool_); }

private:
    void* pool_;
};

} // namespace objc
