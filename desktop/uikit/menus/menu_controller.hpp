// UIMenuItem and UIMenuController: the edit menu, standard items and those that were added.
#pragma once

#include "bindings/uikit/menu_controller.hpp"

#include "desktop/class.hpp"

#include <vector>

namespace desktop {

class MenuItem : public PlatformClass<MenuItem, ui::MenuItem> {
public:
    static constexpr auto methods() {
        return std::array{
            objc::method<"initWithTitle:action:", &MenuItem::initWithTitle>(),
            objc::property<"title", &MenuItem::title_>(),
            objc::property<"action", &MenuItem::action_>(),
        };
    }

private:
    ui::MenuItem initWithTitle(ns::String title, SEL action) {
        title_ = title;
        action_ = action;
        return self();
    }

    objc::Copied<ns::String> title_;
    SEL action_ = nullptr;
};

class MenuController : public PlatformClass<MenuController, ui::MenuController> {
public:
    static std::vector<objc::MethodRow> methods();

    /// The items of the menu that is shown, left to right; empty while none is.
    [[nodiscard]] const std::vector<objc::Strong<ui::MenuItem>>& shownItems() const {
        return shown_;
    }
    /// Hides the menu and sends the item's action to the first responder up the chain that can
    /// perform it.
    void choose(ui::MenuItem item);

private:
    static ui::MenuController sharedMenuController(Class);
    void update();
    [[nodiscard]] bool isMenuVisible() const { return !shown_.empty(); }
    void setMenuVisible(bool visible);
    void setMenuVisibleAnimated(bool visible, bool) { setMenuVisible(visible); }
    void setTargetRect(CGRect rect, ui::View view);
    void showMenu(ui::View view, CGRect rect);
    void hideMenu();
    void hideMenuFrom(ui::View) { hideMenu(); }
    [[nodiscard]] CGRect menuFrame() const { return bar_.frame(); }
    [[nodiscard]] std::vector<objc::Strong<ui::MenuItem>> offered() const;
    void place();

    objc::Copied<ns::ArrayOf<ui::MenuItem>> items_;
    std::vector<objc::Strong<ui::MenuItem>> shown_;
    objc::Strong<ui::View> bar_;
    objc::Strong<ui::View> targetView_;
    CGRect targetRect_;
    long arrowDirection_ = 0;
};

} // namespace desktop
