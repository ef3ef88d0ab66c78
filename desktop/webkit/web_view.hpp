// WKWebView and WKNavigation.
#pragma once

#include "bindings/objc/weak.hpp"
#include "bindings/webkit/navigation.hpp"
#include "bindings/webkit/web_view.hpp"
#include "bindings/webkit/web_view_configuration.hpp"
#include "desktop/class.hpp"
#include "desktop/webkit/web_content.hpp"

namespace desktop {

/// One load of a page: an identity only.
class Navigation : public PlatformClass<Navigation, wk::Navigation> {
public:
    static constexpr std::array<objc::MethodRow, 0> methods() { return {}; }
};

/// There is nothing to configure.
class WebViewConfiguration : public PlatformClass<WebViewConfiguration, wk::WebViewConfiguration> {
public:
    static constexpr std::array<objc::MethodRow, 0> methods() { return {}; }
};

/// Every page arrives at once: its delegate is told so as soon as the main thread is free.
class WebView : public PlatformClass<WebView, wk::WebView> {
public:
    static constexpr auto methods() {
        using Self = WebView;
        return std::array{
            objc::method<"initWithFrame:configuration:", &Self::initWithFrame>(),
            objc::method<"loadRequest:", &Self::loadRequest>(),
            objc::method<"reload", &Self::reload>(),
            objc::method<"stopLoading", &Self::stopLoading>(),
            objc::method<"isLoading", &Self::isLoading>(),
            objc::method<"URL", &Self::url_>(),
            objc::method<"title", &Self::title>(),
            objc::property<"navigationDelegate", &Self::delegate_>(),
            objc::method<"drawRect:", &Self::drawRect>(),
        };
    }

private:
    wk::WebView initWithFrame(CGRect frame, wk::WebViewConfiguration configuration);
    wk::Navigation loadRequest(ns::UrlRequest request);
    wk::Navigation reload();
    void stopLoading() { navigation_ = nullptr; }
    [[nodiscard]] bool isLoading() const { return static_cast<bool>(navigation_); }
    /// That of a page is not known: it is not fetched.
    [[nodiscard]] ns::String title() const { return ns::String::fromUtf8(""); }
    void drawRect(CGRect) const { content_.draw(); }
    void arrive(wk::Navigation navigation);

    WebContent content_;
    objc::Weak<objc::Object> delegate_;
    objc::Copied<ns::UrlRequest> request_;
    objc::Strong<ns::Url> url_;
    objc::Strong<wk::Navigation> navigation_; ///< the one under way
};

/// Makes the classes of web views known, after UIView. Once.
void registerWebClasses();

} // namespace desktop
