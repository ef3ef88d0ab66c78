// NSURLResponse.
#pragma once

#include "bindings/foundation/url.hpp"

namespace ns {

struct UrlResponse : objc::Kind<UrlResponse, "NSURLResponse"> {
    using Kind::Kind;

    /// Where the answer came from, after redirections.
    [[nodiscard]] Url url() const { return send<"URL", Url>(); }
    /// A name for a file of what was loaded: never a path, never empty.
    [[nodiscard]] String suggestedFilename() const { return send<"suggestedFilename", String>(); }
};

} // namespace ns
