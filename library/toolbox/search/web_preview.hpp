// A web page over the host's screen.
#pragma once

#include "bindings/objc/part.hpp"
#include "bindings/webkit/web_view.hpp"
#include "library/toolbox/floating_view_controller.hpp"

namespace wentra::toolbox {

/// The preview's screen and its web view; neither is there while no preview is.
class WebPreview : public objc::Part<FloatingViewController> {
public:
    using Part::Part;
    static WebPreview& of(objc::Object controller);
    static constexpr auto methods() {
        return std::array{
            objc::property<"webViewController", &WebPreview::screen_>(),
            objc::property<"webView", &WebPreview::page_>(),
            objc::method<"presentWebViewControllerWithURL:", &WebPreview::show>(),
            objc::method<"closeButtonPressed:", &WebPreview::close>(),
        };
    }

    /// Loads the address, a bare host included, and shows the page. Nothing for nil.
    void show(ns::Url url);

private:
    void load(ns::Url url) const;
    void addCloseButton() const;
    void close(objc::Object sender);

    objc::Strong<ui::ViewController> screen_;
    objc::Strong<wk::WebView> page_;
};

} // namespace wentra::toolbox
