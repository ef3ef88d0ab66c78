// Layout of the rule editor's containers: each gets the long press that opens the editor.
#include "library/labels/rule_editor_hooks.hpp"

#include "bindings/uikit/view.hpp"
#include "library/preferences/preferences.hpp"

#include <array>

namespace wentra::labels {
namespace {

/// The names of the containers are those of other applications' classes; they may be no views.
void attach(objc::Object container) { container.as<ui::View>().send<"attachLongPressHandler33">(); }

void laidOut(objc::Next<void()> next, objc::Object container) {
    next();
    attach(container);
}

void barLaidOut(objc::Next<void()> next, objc::Object bar) {
    next();
    if (preferences::Preferences::read().on(preferences::keys.longPressOnNavigation)) {
        attach(bar);
    }
}

} // namespace

std::span<const objc::Change> containerHooks() {
    static constexpr std::array changes{
        objc::hook<"UIStackView", "layoutSubviews", &laidOut>(),
        objc::hook<"AWELeftSideBarCollectionReusableView", "layoutSubviews", &laidOut>(),
        objc::hook<"T1TimelineNavigationController", "layoutSubviews", &laidOut>(),
        objc::hook<"UINavigationBar", "layoutSubviews", &barLaidOut>(),
    };
    return changes;
}

std::span<const objc::Change> cameraHooks() {
    static constexpr std::array changes{
        objc::hook<"XCamera.XHContentView", "layoutSubviews", &laidOut>(),
    };
    return changes;
}

} // namespace wentra::labels
