// NSDate.
#pragma once

#include "bindings/objc/kind.hpp"

namespace ns {

struct Date : objc::Kind<Date, "NSDate"> {
    using Kind::Kind;

    static Date date() { return sendClass<"date", Date>(); }
    static Date distantPast() { return sendClass<"distantPast", Date>(); }
    /// Seconds since 1970, UTC.
    static Date withTimeIntervalSince1970(double seconds) {
        return sendClass<"dateWithTimeIntervalSince1970:", Date>(seconds);
    }
    [[nodiscard]] double timeIntervalSince1970() const {
        return send<"timeIntervalSince1970", double>();
    }
};

} // namespace ns
