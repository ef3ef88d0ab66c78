// NSURLProtocol: what loads the requests of one kind of URL.
#pragma once

#include "bindings/objc/kind.hpp"

namespace ns {

struct UrlProtocol : objc::Kind<UrlProtocol, "NSURLProtocol"> {
    using Kind::Kind;

    /// A registered class is asked for each request, the last one first.
    static bool registerClass(Class protocol) {
        return sendClass<"registerClass:", bool>(protocol);
    }
};

} // namespace ns
