// NSURLResponse.
#pragma once

#include "bindings/foundation/url.hpp"

namespace ns {

struct UrlResponse : objc::Kind<UrlResponse, "NSURLResponse"> {
    using Kind::Kind;

    /// Where the answer came from, after redirections.
    [[nodiscard]] Url url() const { return send<"URL", Url>(); }
};

} // namespace ns
