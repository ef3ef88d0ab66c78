// NSBundle.
#pragma once

#include "bindings/foundation/string.hpp"

namespace ns {

struct Bundle : objc::Kind<Bundle, "NSBundle"> {
    using Kind::Kind;

    static Bundle mainBundle() { return sendClass<"mainBundle", Bundle>(); }
    /// In the user's language where the bundle has it in several; nil when there is none.
    [[nodiscard]] objc::Object objectForInfoDictionaryKey(String key) const {
        return send<"objectForInfoDictionaryKey:", objc::Object>(key);
    }
    [[nodiscard]] String bundleIdentifier() const { return send<"bundleIdentifier", String>(); }
};

} // namespace ns
