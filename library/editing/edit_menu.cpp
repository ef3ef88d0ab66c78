// The edit menu's items, and which actions its views perform.
#include "library/editing/edit_menu.hpp"

#include "bindings/foundation/dictionary.hpp"
#include "bindings/foundation/notification_center.hpp"
#include "bindings/uikit/menu_controller.hpp"
#include "library/editing/menu_commands.hpp"
#include "library/preferences/preferences.hpp"

#include <array>

namespace wentra::editing {
namespace {

using namespace ns::literals;
using objc::Next;
using objc::Object;
using preferences::keys;
using preferences::Preferences;

void updateSharedMenu() { ui::MenuController::sharedMenuController().update(); }

bool canBecomeFirstResponder(Next<bool()> next, Object) {
    const bool can = next();
    updateSharedMenu();
    return can;
}

bool canPerform(Next<bool(SEL, Object)> next, Object, SEL action, Object sender) {
    return isMenuCommand(action) || next(action, sender);
}

/// The application's items by their titles.
ns::MutableDictionary itemsByTitle(ns::ArrayOf<ui::MenuItem> items) {
    const auto byTitle = ns::MutableDictionary::make();
    for (const ui::MenuItem item : items) {
        const ns::String title = item.title();
        byTitle.set(item, title ? title : u""_ns);
    }
    return byTitle;
}

/// An item of the application's that has a command's title stands for the command.
void update(Next<void()> next, ui::MenuController menu) {
    next();
    const auto items = itemsByTitle(menu.menuItems());
    const auto preferences = Preferences::read();
    for (const MenuCommand& command : menuCommands) {
        if (const ns::String title = command.title();
            preferences.on(command.preference) && !items.get(title)) {
            items.set(ui::MenuItem::with(title, command.action()), title);
        }
    }
    menu.setMenuItems(items.allValues());
}

} // namespace

bool canPerformInText(Next<bool(SEL, Object)> next, Object, SEL action, Object sender) {
    return isMenuCommand(action) ||
           (!Preferences::read().on(keys.hideSystemMenu) && next(action, sender));
}

void observeMenu() {
    ns::NotificationCenter::defaultCenter().addObserverForName(
        u"UIMenuControllerWillShowMenuNotification"_ns, nullptr, ns::OperationQueue::mainQueue(),
        objc::Block<void(ns::Notification)>::from([](ns::Notification) { updateSharedMenu(); }));
}

std::span<const objc::Change> responderHooks() {
    static constexpr std::array changes{
        objc::hook<"UIResponder", "canBecomeFirstResponder", &canBecomeFirstResponder>(),
        objc::hook<"UIResponder", "canPerformAction:withSender:", &canPerform>(),
    };
    return changes;
}

std::span<const objc::Change> menuHooks() {
    static constexpr std::array changes{
        objc::hook<"update", &update>(),
    };
    return changes;
}

} // namespace wentra::editing
