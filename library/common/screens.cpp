// Finds windows and controllers of the host.
#include "library/common/screens.hpp"

#include "bindings/uikit/application.hpp"
#include "bindings/uikit/window_scene.hpp"

namespace wentra {

ui::Window keyWindow() {
    for (const objc::Object window : ui::Application::shared().windows()) {
        if (window.assume<ui::Window>().isKeyWindow()) {
            return window.assume<ui::Window>();
        }
    }
    return nullptr;
}

ui::Window activeWindow() {
    for (const objc::Object each : ui::Application::shared().connectedScenes().allObjects()) {
        const auto scene = each.as<ui::WindowScene>();
        if (scene && scene.activationState() == ui::activation::foregroundActive) {
            return scene.windows().first().assume<ui::Window>();
        }
    }
    return nullptr;
}

ui::ViewController topViewController() {
    ui::ViewController top = activeWindow().rootViewController();
    while (const ui::ViewController next = top.presentedViewController()) {
        top = next;
    }
    return top;
}

} // namespace wentra
