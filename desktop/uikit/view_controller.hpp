// UIViewController: owns a view, loaded when it is first wanted.
#pragma once

#include "bindings/uikit/view_controller.hpp"

#include "bindings/foundation/string.hpp"
#include "desktop/class.hpp"

namespace desktop {

class ViewController : public PlatformClass<ViewController, ui::ViewController> {
public:
    static auto methods() {
        return std::array{
            objc::property<"view", &ViewController::view, &ViewController::setView>(),
            objc::method<"isViewLoaded", &ViewController::isViewLoaded>(),
            objc::method<"loadView", &ViewController::loadView>(),
            objc::method<"viewDidLoad", &ViewController::viewDidLoad>(),
            objc::method<"nextResponder", &ViewController::nextResponder>(),
            objc::method<"presentedViewController", &ViewController::presentedViewController>(),
            objc::property<"title", &ViewController::title_>(),
        };
    }

    ~ViewController();

private:
    [[nodiscard]] ui::View view();
    void setView(ui::View view);
    [[nodiscard]] bool isViewLoaded() const { return static_cast<bool>(view_); }
    void loadView();
    void viewDidLoad() {}
    [[nodiscard]] ui::Responder nextResponder() const;
    [[nodiscard]] ui::ViewController presentedViewController() const { return nullptr; }

    objc::Strong<ui::View> view_;
    objc::Copied<ns::String> title_;
};

} // namespace desktop
