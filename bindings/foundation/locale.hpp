// NSLocale.
#pragma once

#include "bindings/foundation/string.hpp"

namespace ns {

struct Locale : objc::Kind<Locale, "NSLocale"> {
    using Kind::Kind;

    static Locale withIdentifier(String identifier) {
        return sendClass<"localeWithLocaleIdentifier:", Locale>(identifier);
    }
};

} // namespace ns
