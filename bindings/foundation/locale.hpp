// NSLocale.
#pragma once

#include "bindings/foundation/string.hpp"

namespace ns {

struct Locale : objc::Kind<Locale, "NSLocale"> {
    using Kind::Kind;

    /// "zh_CN".
    static Locale withIdentifier(String identifier) {
        return make<"initWithLocaleIdentifier:">(identifier);
    }
};

} // namespace ns
