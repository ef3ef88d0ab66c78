// Windows: their controller, and which of them is visible and key.
#include "desktop/uikit/application/window.hpp"

#include "desktop/uikit/application/application.hpp"
#include "desktop/uikit/views/view.hpp"

namespace desktop {

ui::Window Window::initWithFrame(CGRect frame) {
    super<"initWithFrame:", ui::View>(frame);
    super<"setHidden:">(true); // a window shows when it is asked to
    scene_ = Application::shared().scene();
    return self();
}

ui::Window Window::initWithWindowScene(ui::WindowScene scene) {
    self().send<"initWithFrame:", ui::Window>(ui::Screen::mainScreen().bounds());
    scene_ = scene;
    return self();
}

Window::~Window() { Application::shared().forget(self()); }

void Window::setRootViewController(ui::ViewController controller) {
    if (rootController_) {
        rootController_.view().removeFromSuperview();
    }
    rootController_ = controller;
    if (!self().isHidden()) {
        showRootView();
    }
}

/// The root controller's view comes into the window when the window shows.
void Window::showRootView() {
    if (rootController_ && !rootController_.presentedViewController()) {
        rootController_.view().setFrame(self().bounds());
        self().insertSubview(rootController_.view(), 0);
    }
}

objc::Object Window::screen() const { return ui::Screen::mainScreen(); }

bool Window::isKeyWindow() const { return Application::shared().keyWindow() == self(); }

void Window::makeKeyWindow() { Application::shared().setKeyWindow(self()); }

void Window::makeKeyAndVisible() {
    self().setHidden(false);
    makeKeyWindow();
}

void Window::fitScreen() {
    const CGRect screen = ui::Screen::mainScreen().bounds();
    if (self().frame() == std::exchange(screen_, screen)) {
        self().setFrame(screen);
    }
}

void Window::setHidden(bool hidden) {
    super<"setHidden:">(hidden);
    if (!hidden) {
        View::of(self()).inherit(screenTraits()); // it is told nothing while it is hidden
        fitScreen();
        showRootView();
        Application::shared().show(self());
    } else {
        Application::shared().passKey(self());
    }
}

ui::Responder Window::nextResponder() const { return ui::Application::sharedApplication(); }

void Window::layoutSubviews() {
    if (rootController_) {
        rootController_.view().setFrame(self().bounds());
    }
}

} // namespace desktop
