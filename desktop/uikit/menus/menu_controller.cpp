// Which items the edit menu has, and when it is shown.
#include "desktop/uikit/menus/menu_controller.hpp"

#include "bindings/foundation/notification_center.hpp"
#include "bindings/uikit/window.hpp"
#include "desktop/uikit/events/first_responder.hpp"
#include "desktop/uikit/menus/callout_bar.hpp"
#include "desktop/uikit/text/text_effects_window.hpp"

#include <array>
#include <utility>

namespace desktop {
namespace {

using namespace ns::literals;

struct StandardItem {
    const char16_t* title;
    SEL (*action)();
};

/// As a phone in simplified Chinese names and orders them.
constexpr std::array<StandardItem, 6> standardItems{{
    {u"剪切", &objc::selector<"cut:">},
    {u"拷贝", &objc::selector<"copy:">},
    {u"粘贴", &objc::selector<"paste:">},
    {u"删除", &objc::selector<"delete:">},
    {u"选择", &objc::selector<"select:">},
    {u"全选", &objc::selector<"selectAll:">},
}};

} // namespace

std::vector<objc::MethodRow> MenuController::methods() {
    using Self = MenuController;
    return {
        objc::classMethod<"sharedMenuController", &Self::sharedMenuController>(),
        objc::property<"menuItems", &Self::items_>(),
        objc::property<"arrowDirection", &Self::arrowDirection_>(),
        objc::method<"update", &Self::update>(),
        objc::method<"isMenuVisible", &Self::isMenuVisible>(),
        objc::method<"setMenuVisible:", &Self::setMenuVisible>(),
        objc::method<"setMenuVisible:animated:", &Self::setMenuVisibleAnimated>(),
        objc::method<"setTargetRect:inView:", &Self::setTargetRect>(),
        objc::method<"showMenuFromView:rect:", &Self::showMenu>(),
        objc::method<"hideMenu", &Self::hideMenu>(),
        objc::method<"hideMenuFromView:", &Self::hideMenuFrom>(),
        objc::method<"menuFrame", &Self::menuFrame>(),
    };
}

ui::MenuController MenuController::sharedMenuController(Class) {
    static const auto* shared = new objc::Strong(ui::MenuController::make());
    return *shared;
}

std::vector<objc::Strong<ui::MenuItem>> MenuController::offered() const {
    std::vector<objc::Strong<ui::MenuItem>> items;
    const objc::Strong<ui::Responder> first = first_responder::current();
    const auto offer = [&](ui::MenuItem item) {
        if (first.targetForAction(item.action(), self())) {
            items.emplace_back(item);
        }
    };
    for (const StandardItem& standard : standardItems) {
        offer(ui::MenuItem::with(ns::String::from(standard.title), standard.action()));
    }
    for (const objc::Object added : items_.copied()) {
        if (const auto item = added.as<ui::MenuItem>(); item && item.action() != nullptr) {
            offer(item);
        }
    }
    return items;
}

void MenuController::update() {
    if (isMenuVisible()) {
        shown_ = offered();
        place();
    }
}

void MenuController::setTargetRect(CGRect rect, ui::View view) {
    targetRect_ = rect;
    targetView_ = view;
}

void MenuController::showMenu(ui::View view, CGRect rect) {
    setTargetRect(rect, view);
    setMenuVisible(true);
}

void MenuController::setMenuVisible(bool visible) {
    if (!visible) {
        hideMenu();
        return;
    }
    const auto center = ns::NotificationCenter::defaultCenter();
    const bool wasVisible = isMenuVisible();
    if (!wasVisible) {
        center.post(u"UIMenuControllerWillShowMenuNotification"_ns, self());
    }
    shown_ = offered();
    place();
    if (!wasVisible && isMenuVisible()) {
        center.post(u"UIMenuControllerDidShowMenuNotification"_ns, self());
    }
}

void MenuController::hideMenu() {
    if (!isMenuVisible()) {
        return;
    }
    const auto center = ns::NotificationCenter::defaultCenter();
    center.post(u"UIMenuControllerWillHideMenuNotification"_ns, self());
    shown_.clear();
    place();
    center.post(u"UIMenuControllerDidHideMenuNotification"_ns, self());
}

/// Puts the bar beside the target, or takes it away when there is nothing to offer.
void MenuController::place() {
    if (shown_.empty()) {
        bar_.removeFromSuperview();
        targetView_ = nullptr;
        return;
    }
    if (!bar_) {
        bar_ = CalloutBarKind::make<"initWithFrame:">(CGRect());
    }
    const ui::Window window = TextEffectsWindow::shared();
    window.addSubview(bar_);
    CGRect target = targetView_.convertRect(targetRect_, nullptr);
    const CGPoint origin = targetView_.window().frame().origin;
    target.origin.x += origin.x;
    target.origin.y += origin.y;
    CalloutBar::of(bar_).present(shown_, target, window.bounds());
}

void MenuController::choose(ui::MenuItem item) {
    const objc::Strong<ui::MenuItem> chosen = item;
    hideMenu();
    const ui::Responder target =
        first_responder::current().targetForAction(chosen.action(), self());
    objc::sendTo(target.raw(), chosen.action(), self());
}

} // namespace desktop
