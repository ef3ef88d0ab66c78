// NSTextCheckingResult: what was found in a text, and where.
#pragma once

#include "bindings/foundation/url.hpp"

namespace ns {

/// What is found; the platform's bits.
enum class TextCheckingType : unsigned long { link = 1U << 5U };

struct TextCheckingResult : objc::Kind<TextCheckingResult, "NSTextCheckingResult"> {
    using Kind::Kind;

    /// In UTF-16 units.
    [[nodiscard]] Range range() const { return send<"range", Range>(); }
    /// Of a link: mailto: for an address, http: for a bare host.
    [[nodiscard]] Url url() const { return send<"URL", Url>(); }
};

} // namespace ns
