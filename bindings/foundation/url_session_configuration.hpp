// NSURLSessionConfiguration.
#pragma once

#include "bindings/objc/kind.hpp"

namespace ns {

struct UrlSessionConfiguration : objc::Kind<UrlSessionConfiguration, "NSURLSessionConfiguration"> {
    using Kind::Kind;

    /// A fresh one that may be changed.
    static UrlSessionConfiguration defaultSessionConfiguration() {
        return sendClass<"defaultSessionConfiguration", UrlSessionConfiguration>();
    }
};

} // namespace ns
