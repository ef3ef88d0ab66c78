// UIMenuController: the edit menu.
#pragma once

#include "bindings/uikit/menu_item.hpp"
#include "bindings/uikit/view.hpp"

namespace ui {

struct MenuController : objc::Kind<MenuController, "UIMenuController"> {
    using Kind::Kind;

    static MenuController sharedMenuController() {
        return sendClass<"sharedMenuController", MenuController>();
    }
    /// What the application has added to the standard items.
    [[nodiscard]] ns::ArrayOf<MenuItem> menuItems() const {
        return send<"menuItems", ns::ArrayOf<MenuItem>>();
    }
    void setMenuItems(ns::Array items) const { send<"setMenuItems:">(items); }
    void update() const { send<"update">(); }
    [[nodiscard]] bool isMenuVisible() const { return send<"isMenuVisible", bool>(); }
    /// Shows the items that the first responder's chain can perform, beside a rectangle of a view.
    void showMenu(View view, CGRect rect) const { send<"showMenuFromView:rect:">(view, rect); }
    void hideMenu() const { send<"hideMenu">(); }
};

} // namespace ui
