// NSNotification.
#pragma once

#include "bindings/foundation/dictionary.hpp"
#include "bindings/foundation/string.hpp"

namespace ns {

struct Notification : objc::Kind<Notification, "NSNotification"> {
    using Kind::Kind;

    [[nodiscard]] String name() const { return send<"name", String>(); }
    [[nodiscard]] Dictionary userInfo() const { return send<"userInfo", Dictionary>(); }
};

} // namespace ns
