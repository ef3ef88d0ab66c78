// NSURLConnection: how requests were loaded before sessions.
#pragma once

#include "bindings/foundation/data.hpp"
#include "bindings/foundation/url_request.hpp"

namespace ns {

struct UrlConnection : objc::Kind<UrlConnection, "NSURLConnection"> {
    using Kind::Kind;

    /// Waits for the body.
    static Result<Data> sendSynchronous(UrlRequest request) {
        const ErrorPointer error;
        return error.result(sendClass<"sendSynchronousRequest:returningResponse:error:", Data>(
            request, static_cast<void*>(nullptr), error.out()));
    }
};

} // namespace ns
