// UIWindowScene: the one scene, in the foreground.
#pragma once

#include "bindings/uikit/window_scene.hpp"

#include "bindings/uikit/application.hpp"
#include "desktop/class.hpp"

namespace desktop {

class WindowScene : public PlatformClass<WindowScene, ui::WindowScene> {
public:
    static auto methods() {
        return std::array{
            objc::method<"activationState", &WindowScene::activationState>(),
            objc::method<"windows", &WindowScene::windows>(),
            objc::method<"screen", &WindowScene::screen>(),
        };
    }

private:
    [[nodiscard]] long activationState() const { return ui::activation::foregroundActive; }
    [[nodiscard]] ns::Array windows() const { return ui::Application::shared().windows(); }
    [[nodiscard]] ui::Screen screen() const { return ui::Screen::main(); }
};

} // namespace desktop
