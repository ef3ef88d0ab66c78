// The window above all others that the keyboard and the edit menu are shown in.
#pragma once

#include "bindings/uikit/event.hpp"
#include "bindings/uikit/window.hpp"

#include "desktop/class.hpp"

namespace desktop {

struct TextEffectsWindowKind
    : objc::Kind<TextEffectsWindowKind, "UITextEffectsWindow", ui::Window> {
    using Kind::Kind;
};

/// Takes only the touches on what is in it. It is not among the application's windows, and never
/// the key window.
class TextEffectsWindow : public PlatformClass<TextEffectsWindow, TextEffectsWindowKind> {
public:
    static constexpr auto methods() {
        return std::array{
            objc::method<"hitTest:withEvent:", &TextEffectsWindow::hitTest>(),
            objc::method<"makeKeyWindow", &TextEffectsWindow::makeKeyWindow>(),
        };
    }

    /// Made and shown when it is first wanted.
    static ui::Window shared();

private:
    [[nodiscard]] ui::View hitTest(CGPoint point, ui::Event event) const;
    void makeKeyWindow() {}
};

} // namespace desktop
