// Loading, as far as the application can see it.
#include "desktop/webkit/web_view.hpp"

#include "bindings/objc/pool.hpp"
#include "bindings/webkit/navigation.hpp"
#include "bindings/webkit/web_view_configuration.hpp"
#include "desktop/runtime/main_queue.hpp"

namespace desktop {

wk::WebView WebView::initWithFrame(CGRect frame, wk::WebViewConfiguration) {
    return self().send<"initWithFrame:", wk::WebView>(frame);
}

wk::Navigation WebView::loadRequest(ns::UrlRequest request) {
    const ns::Url url = request.url();
    if (!url) {
        return nullptr;
    }
    request_ = request;
    url_ = url;
    content_.load(self(), url, request.allHttpHeaderFields());
    navigation_ = wk::Navigation::make();
    MainQueue::shared().add([kept = objc::Strong(self()), navigation = navigation_] {
        const objc::Pool pool;
        of(kept).arrive(navigation);
    });
    return navigation_;
}

wk::Navigation WebView::reload() { return loadRequest(objc::Strong<ns::UrlRequest>(request_)); }

void WebView::arrive(wk::Navigation navigation) {
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
        if (const auto told = delegate_.strong(); told.respondsToSelector(step)) {
            objc::sendTo(told.raw(), step, self(), navigation);
        }
    }
}

void registerWebClasses() {
    Navigation::registerClass();
    WebViewConfiguration::registerClass();
    WebView::registerClass();
}

} // namespace desktop
