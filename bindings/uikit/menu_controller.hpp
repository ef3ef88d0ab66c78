// UIMenuController: the edit menu.
#pragma once

#include "bindings/foundation/array.hpp"

namespace ui {

struct MenuController : objc::Kind<MenuController, "UIMenuController"> {
    using Kind::Kind;

    static MenuController shared() { return sendClass<"sharedMenuController", MenuController>(); }
    [[nodiscard]] ns::Array menuItems() const { return send<"menuItems", ns::Array>(); }
    void update() const { send<"update">(); }
};

} // namespace ui
