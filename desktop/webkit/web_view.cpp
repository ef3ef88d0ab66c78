// Loading, as far as the application can see it.
#include "desktop/webkit/web_view.hpp"

#include "bindings/objc/pool.hpp"
#include "desktop/runtime/main_queue.hpp"

namespace desktop {

wk::WebView WebView::initWithFrame(CGRect frame, WebViewConfigurationKind) {
    return self().send<"initWithFrame:", wk::WebView>(frame);
}

NavigationKind WebView::loadRequest(ns::UrlRequest request) {
    const ns::Url url = request.url();
    if (!url) {
        return nullptr;
    }
    request_ = request;
    url_ = url;
    content_.load(self(), url, request.allHttpHeaderFields());
    navigation_ = NavigationKind::make();
    MainQueue::shared().add([kept = objc::Strong(self()), navigation = navigation_] {
        const objc::Pool pool;
        of(kept).arrive(navigation);
    });
    return navigation_;
}

NavigationKind WebView::reload() { return loadRequest(objc::Strong<ns::UrlRequest>(request_)); }

void WebView::arrive(NavigationKind navigation) {
    // The delegate may stop it, or begin another one, at any step.
    for (const SEL step : {objc::selector<"webView:didStartProvisionalNavigation:">(),
                           objc::selector<"webView:didCommitNavigation:">(),
                           objc::selector<"webView:didFinishNavigation:">()}) {
        if (navigation_ != navigation) {
            return;
        }
        if (step == objc::selector<"webView:didFinishNavigation:">()) {
            navigation_ = nullptr;
        }
        if (delegate_.respondsToSelector(step)) {
            objc::sendTo(delegate_.raw(), step, self(), navigation);
        }
    }
}

void registerWebClasses() {
    Navigation::registerClass();
    WebViewConfiguration::registerClass();
    WebView::registerClass();
}

} // namespace desktop
