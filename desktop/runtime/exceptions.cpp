// Remembers the Objective-C exception that a thread threw last, so that C++ can name what it
// caught.
#include "bindings/objc/strong.hpp"

#include <cstdlib>
#include <dlfcn.h>

namespace {

objc::Strong<objc::Object>& lastThrown() {
    thread_local objc::Strong<objc::Object> exception;
    return exception;
}

} // namespace

extern "C" {

id objc_last_exception_thrown() { return lastThrown().raw(); }

/// Stands in front of libobjc's function of the same name and calls on.
[[noreturn]] void objc_exception_throw(id exception) {
    lastThrown() = objc::wrap(exception);
    static const auto next =
        reinterpret_cast<void (*)(id)>(dlsym(RTLD_NEXT, "objc_exception_throw"));
    next(exception);
    std::abort();
}
}
