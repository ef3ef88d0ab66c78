// NSRunLoop, and the dates that it waits for.
#pragma once

#include "bindings/foundation/string.hpp"

namespace ns {

struct Date : objc::Kind<Date, "NSDate"> {
    using Kind::Kind;

    static Date now() { return sendClass<"date", Date>(); }
    static Date distantPast() { return sendClass<"distantPast", Date>(); }
    /// Seconds since 1970, UTC.
    static Date since1970(double seconds) {
        return sendClass<"dateWithTimeIntervalSince1970:", Date>(seconds);
    }
    [[nodiscard]] double secondsSince1970() const {
        return send<"timeIntervalSince1970", double>();
    }
};

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
