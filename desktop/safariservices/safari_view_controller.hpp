// SFSafariViewController: a web page with a bar to leave it by.
#pragma once

#include "bindings/objc/weak.hpp"
#include "bindings/safariservices/safari_view_controller.hpp"

#include "desktop/class.hpp"

namespace desktop {

class SafariViewController : public PlatformClass<SafariViewController, sf::SafariViewController> {
public:
    static constexpr auto methods() {
        return std::array{
            objc::method<"initWithURL:", &SafariViewController::initWithUrl>(),
            objc::property<"delegate", &SafariViewController::delegate_>(),
            objc::property<"preferredControlTintColor", &SafariViewController::tint_>(),
            objc::property<"preferredBarTintColor", &SafariViewController::barTint_>(),
            objc::method<"viewDidLoad", &SafariViewController::viewDidLoad>(),
            objc::method<"donePressed", &SafariViewController::donePressed>(),
        };
    }

private:
    sf::SafariViewController initWithUrl(ns::Url url);
    void viewDidLoad();
    void donePressed();

    objc::Strong<ns::Url> url_;
    objc::Strong<ui::Color> tint_;
    objc::Strong<ui::Color> barTint_;
    objc::Weak<objc::Object> delegate_;
};

} // namespace desktop
