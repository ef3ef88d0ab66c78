// NSURLResponse and NSHTTPURLResponse.
#pragma once

#include "bindings/foundation/dictionary.hpp"
#include "bindings/foundation/url.hpp"

namespace ns {

struct UrlResponse : objc::Kind<UrlResponse, "NSURLResponse"> {
    using Kind::Kind;

    /// Where the answer came from, after redirections.
    [[nodiscard]] Url url() const { return send<"URL", Url>(); }
};

struct HttpUrlResponse : objc::Kind<HttpUrlResponse, "NSHTTPURLResponse", UrlResponse> {
    using Kind::Kind;

    [[nodiscard]] long statusCode() const { return send<"statusCode", long>(); }
    [[nodiscard]] Dictionary allHeaderFields() const {
        return send<"allHeaderFields", Dictionary>();
    }
};

} // namespace ns
