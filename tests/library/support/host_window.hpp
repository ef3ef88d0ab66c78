// A window with a controller, as an application brings it up.
#pragma once

#include "bindings/uikit/view_controller.hpp"
#include "bindings/uikit/window.hpp"
#include "tests/desktop/uikit/uikit_fixture.hpp"

namespace wentra::test {

/// The key window in front of a screen with a root controller.
class WithWindow : public tests::UIKitTest {
protected:
    WithWindow() {
        root_.setView(ui::View::withFrame({{0, 0}, {390, 844}}));
        window_.setRootViewController(root_);
        window_.makeKeyAndVisible();
    }
    [[nodiscard]] ui::ViewController root() const { return root_; }

private:
    objc::Strong<ui::Window> window_ = ui::Window::withFrame({{0, 0}, {390, 844}});
    objc::Strong<ui::ViewController> root_ = ui::ViewController::make();
};

} // namespace wentra::test
