// UIMenuController: the edit menu.
#pragma once

#include "bindings/uikit/view.hpp"

namespace ui {

/// A title and the action that is sent up the responder chain.
struct MenuItem : objc::Kind<MenuItem, "UIMenuItem"> {
    using Kind::Kind;

    static MenuItem with(ns::String title, SEL action) {
        return make<"initWithTitle:action:">(title, action);
    }
    [[nodiscard]] ns::String title() const { return send<"title", ns::String>(); }
    [[nodiscard]] SEL action() const { return send<"action", SEL>(); }
};

struct MenuController : objc::Kind<MenuController, "UIMenuController"> {
    using Kind::Kind;

    static MenuController shared() { return sendClass<"sharedMenuController", MenuController>(); }
    /// What the application has added to the standard items.
    [[nodiscard]] ns::Array menuItems() const { return send<"menuItems", ns::Array>(); }
    void setMenuItems(ns::Array items) const { send<"setMenuItems:">(items); }
    void update() const { send<"update">(); }
    [[nodiscard]] bool isMenuVisible() const { return send<"isMenuVisible", bool>(); }
    /// Shows the items that the first responder's chain can perform, beside a rectangle of a view.
    void showMenu(View view, CGRect rect) const { send<"showMenuFromView:rect:">(view, rect); }
    void hideMenu() const { send<"hideMenu">(); }
};

} // namespace ui
