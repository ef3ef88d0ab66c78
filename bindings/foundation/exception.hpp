// NSException.
#pragma once

#include "bindings/foundation/string.hpp"

namespace ns {

struct Exception : objc::Kind<Exception, "NSException"> {
    using Kind::Kind;

    static Exception with(String name, String reason) {
        return sendClass<"exceptionWithName:reason:userInfo:", Exception>(name, reason,
                                                                          objc::Object());
    }
    [[nodiscard]] String name() const { return send<"name", String>(); }
    [[nodiscard]] String reason() const { return send<"reason", String>(); }
    [[noreturn]] void raise() const {
        send<"raise">();
        __builtin_unreachable();
    }
};

} // namespace ns
