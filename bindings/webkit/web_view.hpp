// WKWebView: shows a web page.
#pragma once

#include "bindings/foundation/url_request.hpp"
#include "bindings/uikit/view.hpp"
#include "bindings/webkit/navigation.hpp"

namespace wk {

struct WebView : objc::Kind<WebView, "WKWebView", ui::View> {
    using Kind::Kind;

    static WebView withFrame(CGRect frame) { return make<"initWithFrame:">(frame); }

    /// The navigation that begins, for the delegate to tell it by; nil when the request has no URL.
    Navigation load(ns::UrlRequest request) const {
        return send<"loadRequest:", Navigation>(request);
    }
    void stopLoading() const { send<"stopLoading">(); }
    [[nodiscard]] bool isLoading() const { return send<"isLoading", bool>(); }
    [[nodiscard]] ns::Url url() const { return send<"URL", ns::Url>(); }
    void setNavigationDelegate(objc::Object delegate) const {
        send<"setNavigationDelegate:">(delegate);
    }
};

} // namespace wk
