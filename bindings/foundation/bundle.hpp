// NSBundle.
#pragma once

#include "bindings/foundation/string.hpp"

namespace ns {

struct Bundle : objc::Kind<Bundle, "NSBundle"> {
    using Kind::Kind;

    static Bundle mainBundle() { return sendClass<"mainBundle", Bundle>(); }
    [[nodiscard]] String bundleIdentifier() const { return send<"bundleIdentifier", String>(); }
};

} // namespace ns
