// The runtime's functions for allocation, references and autorelease pools, by the messages that
// they stand for.
#include "bindings/objc/send.hpp"

id objc_alloc(Class cls) { return objc::send<"alloc", id>(objc::object(cls)); }

id objc_retain(id object) noexcept { return objc::send<"retain", id>(object); }

void objc_release(id object) noexcept { objc::send<"release">(object); }

id objc_autorelease(id object) noexcept { return objc::send<"autorelease", id>(object); }

void* objc_autoreleasePoolPush() noexcept {
    static const id pools = objc::object(objc_getClass("NSAutoreleasePool"));
    return objc::send<"new", id>(pools);
}

void objc_autoreleasePoolPop(void* pool) noexcept { objc::send<"drain">(static_cast<id>(pool)); }
