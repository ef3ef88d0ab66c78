// The edit menu's items, and which actions its views perform.
#include "library/editing/edit_menu.hpp"

#include "bindings/foundation/array.hpp"
#include "bindings/foundation/notification_center.hpp"
#include "bindings/uikit/menu_controller.hpp"
#include "library/editing/menu_commands.hpp"
#include "library/preferences/preferences.hpp"

#include <array>
#include <atomic>
#include <functional>
#include <map>
#include <string>

namespace wentra::editing {
namespace {

using namespace ns::literals;
using objc::Next;
using objc::Object;
using preferences::keys;
using preferences::Preferences;

/// One at a time: an update asks responders what they can perform, and one of them may in turn ask
/// whether it can be the first; another thread would find the menu half changed.
class SharedMenuUpdate {
public:
    SharedMenuUpdate() : isFirst_(!running_.test_and_set()) {}
    SharedMenuUpdate(const SharedMenuUpdate&) = delete;
    SharedMenuUpdate& operator=(const SharedMenuUpdate&) = delete;
    ~SharedMenuUpdate() {
        if (isFirst_) {
            running_.clear();
        }
    }

    void run() const {
        if (isFirst_) {
            ui::MenuController::sharedMenuController().update();
        }
    }

private:
    static inline std::atomic_flag running_;
    bool isFirst_;
};

void updateSharedMenu() { SharedMenuUpdate().run(); }

bool canBecomeFirstResponder(Next<bool()> next, Object) {
    const bool can = next();
    updateSharedMenu();
    return can;
}

bool canPerform(Next<bool(SEL, Object)> next, Object, SEL action, Object sender) {
    return isMenuCommand(action) || next(action, sender);
}

using ItemsByTitle = std::map<std::u16string, ui::MenuItem, std::less<>>;

ItemsByTitle itemsByTitle(ns::ArrayOf<ui::MenuItem> items) {
    ItemsByTitle byTitle;
    for (const ui::MenuItem item : items) {
        byTitle.insert_or_assign(item.title().utf16(), item);
    }
    return byTitle;
}

/// An item of the application's that has a command's title stands for the command.
void addCommands(ItemsByTitle& items) {
    const auto preferences = Preferences::read();
    for (const MenuCommand& command : menuCommands) {
        if (preferences.on(command.preference) && !items.contains(command.title)) {
            const auto title = ns::String::from(command.title);
            items.emplace(command.title, ui::MenuItem::with(title, command.action()));
        }
    }
}

ns::Array arrayOf(const ItemsByTitle& items) {
    const auto array = ns::MutableArray::make();
    for (const auto& [title, item] : items) {
        array.add(item);
    }
    return array;
}

/// At most updates nothing is new: the former items stay then.
void update(Next<void()> next, ui::MenuController menu) {
    next();
    const objc::Strong former(menu.menuItems()); // asking for a title may set others
    auto items = itemsByTitle(former);
    const std::size_t different = items.size();
    addCommands(items);
    const bool isSame = former && different == former.count() && different == items.size();
    menu.setMenuItems(isSame ? ns::Array(former) : arrayOf(items));
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
