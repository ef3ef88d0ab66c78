// WKWebViewConfiguration.
#pragma once

#include "bindings/objc/kind.hpp"

namespace wk {

struct WebViewConfiguration : objc::Kind<WebViewConfiguration, "WKWebViewConfiguration"> {
    using Kind::Kind;
};

} // namespace wk
