// NSRunLoop.
#pragma once

#include "bindings/foundation/date.hpp"
#include "bindings/foundation/string.hpp"

namespace ns {

struct RunLoop : objc::Kind<RunLoop, "NSRunLoop"> {
    using Kind::Kind;

    static RunLoop mainRunLoop() { return sendClass<"mainRunLoop", RunLoop>(); }
    static String defaultMode() {
        using namespace literals;
        return u"NSDefaultRunLoopMode"_ns;
    }
    /// Runs one pass in `mode`, waiting for input until `limit` at most.
    void acceptInput(String mode, Date limit) const {
        send<"acceptInputForMode:beforeDate:">(mode, limit);
    }
};

} // namespace ns
