// UIMenuController: the one edit menu and the items that were added to it.
#pragma once

#include "bindings/uikit/menu_controller.hpp"

#include "desktop/class.hpp"

namespace desktop {

class MenuController : public PlatformClass<MenuController, ui::MenuController> {
public:
    static auto methods() {
        return std::array{
            objc::classMethod<"sharedMenuController", &MenuController::sharedMenuController>(),
            objc::property<"menuItems", &MenuController::items_>(),
            objc::method<"update", &MenuController::update>(),
        };
    }

private:
    static ui::MenuController sharedMenuController(Class) {
        static const auto* shared = new objc::Strong(ui::MenuController::make());
        return *shared;
    }
    void update() {}

    objc::Copied<ns::Array> items_;
};

} // namespace desktop
