// View controllers inside of others.
#include "bindings/uikit/navigation_controller.hpp"
#include "bindings/uikit/toolbar.hpp"
#include "desktop/uikit/controllers/view_controller.hpp"

#include <algorithm>

namespace desktop {

ns::Array ViewController::childViewControllers() const {
    const auto array = ns::MutableArray::make();
    for (const auto& child : children_) {
        array.add(child);
    }
    return array;
}

void ViewController::addChild(ui::ViewController child) {
    for (ui::ViewController around = self(); around; around = of(around).parent_) {
        if (around == child) {
            return; // a tree has no cycles
        }
    }
    if (!child || of(child).parent_ == self()) {
        return;
    }
    const objc::Strong<ui::ViewController> kept = child;
    child.removeFromParent();
    child.send<"willMoveToParentViewController:">(self());
    children_.push_back(kept);
    of(child).parent_ = self();
}

void ViewController::removeFromParent() {
    if (!parent_) {
        return;
    }
    const objc::Strong<ui::ViewController> kept = self();
    std::erase(of(parent_).children_, kept);
    parent_ = nullptr;
    self().send<"didMoveToParentViewController:">(ui::ViewController());
}

ui::ViewController ViewController::outermost() const {
    return parent_ ? of(parent_).outermost() : self();
}

ui::NavigationController ViewController::navigationController() const {
    for (ui::ViewController around = parent_; around; around = of(around).parent_) {
        if (const auto navigation = around.as<ui::NavigationController>(); navigation) {
            return navigation;
        }
    }
    return nullptr;
}

/// They may come when the controller is on the screen already.
void ViewController::toolbarItemsChanged() {
    const ui::NavigationController navigation = navigationController();
    if (navigation.topViewController() == self()) {
        navigation.send<"toolbar", ui::Toolbar>().setItems(toolbarItems_);
    }
}

} // namespace desktop
