// The edit menu as it is seen: a dark bar with titles and an arrow.
#pragma once

#include "bindings/uikit/event.hpp"
#include "bindings/uikit/menu_controller.hpp"

#include "desktop/class.hpp"
#include "desktop/uikit/menus/callout_layout.hpp"

namespace desktop {

struct CalloutBarKind : objc::Kind<CalloutBarKind, "UICalloutBar", ui::View> {
    using Kind::Kind;
};

class CalloutBar : public PlatformClass<CalloutBar, CalloutBarKind> {
public:
    static std::vector<objc::MethodRow> methods();

    /// Shows the first page of the items beside a target of the screen.
    void present(const std::vector<objc::Strong<ui::MenuItem>>& items, CGRect target,
                 CGRect screen);

private:
    CalloutBarKind initWithFrame(CGRect frame);
    void turnTo(std::size_t page);
    void touchesBegan(ns::SetOf<ui::Touch> touches, ui::Event event);
    void touchesMoved(ns::SetOf<ui::Touch> touches, ui::Event event) {
        touchesBegan(touches, event);
    }
    void touchesEnded(ns::SetOf<ui::Touch> touches, ui::Event event);
    void touchesCancelled(ns::SetOf<ui::Touch> touches, ui::Event event);
    void drawRect(CGRect dirty);

    std::vector<objc::Strong<ui::MenuItem>> items_;
    std::vector<CalloutPage> pages_;
    std::size_t page_ = 0;
    CGRect target_;
    CGRect screen_;
    CalloutPlace place_;
    const CalloutPart* pressed_ = nullptr;
};

} // namespace desktop
