// Finds windows and controllers of the host.
#include "library/common/screens.hpp"

#include "bindings/uikit/application.hpp"
#include "bindings/uikit/popover_presentation_controller.hpp"
#include "bindings/uikit/window_scene.hpp"
#include "library/common/animated.hpp"

namespace wentra {

ui::Window firstWindow() { return ui::Application::sharedApplication().windows().first(); }

ui::Window keyWindow() {
    for (const ui::Window window : ui::Application::sharedApplication().windows()) {
        if (window.isKeyWindow()) {
            return window;
        }
    }
    return nullptr;
}

ui::Window activeWindow() {
    for (const objc::Object each :
         ui::Application::sharedApplication().connectedScenes().allObjects()) {
        const auto scene = each.as<ui::WindowScene>();
        if (scene && scene.activationState() == ui::SceneActivationState::foregroundActive) {
            return scene.windows().first();
        }
    }
    return nullptr;
}

ui::ViewController topViewController() {
    ui::ViewController top = activeWindow().rootViewController();
    // What is being dismissed would take along whatever it presented now.
    for (ui::ViewController next = top.presentedViewController(); next && !next.isBeingDismissed();
         next = next.presentedViewController()) {
        top = next;
    }
    return top;
}

void presentSheet(ui::ViewController sheet, ui::ViewController controller,
                  ui::ViewController::Completion completion) {
    if (const auto popover = sheet.popoverPresentationController(); !popover.sourceView()) {
        const ui::View view = controller.view();
        const auto [origin, size] = view.bounds();
        popover.setSourceView(view);
        popover.setSourceRect({{origin.x + size.width / 2, origin.y + size.height / 2}, {1, 1}});
    }
    controller.present(sheet, animated, completion);
}

ScreenLookups& ScreenLookups::of(objc::Object /*controller*/) {
    static ScreenLookups shared;
    return shared;
}

} // namespace wentra
