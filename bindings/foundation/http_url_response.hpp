// NSHTTPURLResponse.
#pragma once

#include "bindings/foundation/dictionary.hpp"
#include "bindings/foundation/url_response.hpp"

namespace ns {

struct HttpUrlResponse : objc::Kind<HttpUrlResponse, "NSHTTPURLResponse", UrlResponse> {
    using Kind::Kind;

    [[nodiscard]] long statusCode() const { return send<"statusCode", long>(); }
    [[nodiscard]] Dictionary allHeaderFields() const {
        return send<"allHeaderFields", Dictionary>();
    }
};

} // namespace ns
