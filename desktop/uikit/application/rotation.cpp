// What happens when the screen becomes another one, in the platform's order.
#include "desktop/uikit/application/rotation.hpp"

#include "bindings/uikit/menu_controller.hpp"
#include "desktop/uikit/application/application.hpp"
#include "desktop/uikit/application/screen.hpp"
#include "desktop/uikit/application/transition_coordinator.hpp"
#include "desktop/uikit/application/window.hpp"
#include "desktop/uikit/controllers/view_controller.hpp"
#include "desktop/uikit/keyboard/keyboard.hpp"
#include "desktop/uikit/traits/screen_traits.hpp"
#include "desktop/uikit/traits/trait_collection.hpp"
#include "desktop/uikit/uikit.hpp"

#include <vector>

namespace desktop {
namespace {

using Windows = std::vector<objc::Strong<ui::Window>>;

Windows windowsOnScreen() {
    const auto& visible = Application::shared().visibleWindows();
    return {visible.begin(), visible.end()};
}

/// The controller that has a say in how the phone may be held: the root's, or the front-most of
/// those that fill the screen before it.
ui::ViewController decidingController() {
    ui::ViewController controller = Application::shared().keyWindow().rootViewController();
    using Style = ui::ModalPresentation;
    for (ui::ViewController next = controller.presentedViewController(); next;
         next = next.presentedViewController()) {
        const Style style = ViewController::of(next).phoneStyle();
        if (style == Style::fullScreen || style == Style::overFullScreen) {
            controller = next;
        }
    }
    return controller;
}

bool isSupported(ui::InterfaceOrientation orientation) {
    using ui::InterfaceOrientation;
    if (!Foreground::shared().hasApplication()) {
        return false;
    }
    if (orientation == InterfaceOrientation::portraitUpsideDown &&
        !ScreenGeometry::current().device.hasHomeButton()) {
        return false;
    }
    const ui::ViewController controller = decidingController();
    if (!controller) {
        return orientation != InterfaceOrientation::portraitUpsideDown;
    }
    const auto mask = controller.send<"supportedInterfaceOrientations", unsigned long>();
    return controller.send<"shouldAutorotate", bool>() &&
           (mask >> static_cast<unsigned long>(orientation) & 1U) != 0;
}

void announce(const Windows& windows, const ScreenGeometry& coming,
              TransitionCoordinatorKind coordinator) {
    const Traits now = screenTraits();
    const auto traits =
        TraitCollection::with(phoneTraits(coming.size, coming.scale, now.style, now.contentSize));
    for (const auto& window : windows) {
        const ui::ViewController root = window.rootViewController();
        if (TraitCollection::valueOf(traits) != now) {
            root.send<"willTransitionToTraitCollection:withTransitionCoordinator:">(traits,
                                                                                    coordinator);
        }
        root.send<"viewWillTransitionToSize:withTransitionCoordinator:">(coming.size, coordinator);
    }
}

/// The safe area is another one even for views that keep their size.
void arrangeAnew(ui::View view) {
    view.setNeedsLayout();
    for (const objc::Object child : view.subviews()) {
        arrangeAnew(child.assume<ui::View>());
    }
}

void turn(const Windows& windows, const ScreenGeometry& coming) {
    ScreenGeometry::current() = coming;
    for (const auto& window : windows) {
        Window::of(window).fitScreen();
        arrangeAnew(window);
    }
    spreadScreenTraits();
    Keyboard::shared().fitScreen();
    uikit::layoutWindows();
}

void change(const ScreenGeometry& coming) {
    const Windows windows = windowsOnScreen();
    ui::MenuController::sharedMenuController().hideMenu();
    if (coming.size == ScreenGeometry::current().size) {
        turn(windows, coming);
        return;
    }
    const auto coordinator = TransitionCoordinatorKind::make();
    announce(windows, coming, coordinator);
    turn(windows, coming);
    TransitionCoordinator::of(coordinator).run(Application::shared().keyWindow());
}

} // namespace

ui::InterfaceOrientation rotate(ui::InterfaceOrientation to) {
    const ScreenGeometry former = ScreenGeometry::current();
    if (to == former.orientation || !isSupported(to)) {
        return former.orientation;
    }
    change(former.heldAs(to));
    return to;
}

void exchangeDevice(const Device& device) {
    change(ScreenGeometry::upright(device).heldAs(ScreenGeometry::current().orientation));
}

} // namespace desktop
