// UIWindowScene: the one scene.
#pragma once

#include "bindings/uikit/window_scene.hpp"

#include "bindings/uikit/application.hpp"
#include "bindings/uikit/screen.hpp"
#include "desktop/class.hpp"
#include "desktop/uikit/application/foreground.hpp"
#include "desktop/uikit/application/screen.hpp"

namespace desktop {

class WindowScene : public PlatformClass<WindowScene, ui::WindowScene> {
public:
    static constexpr auto methods() {
        return std::array{
            objc::method<"activationState", &WindowScene::activationState>(),
            objc::method<"windows", &WindowScene::windows>(),
            objc::method<"screen", &WindowScene::screen>(),
            objc::method<"interfaceOrientation", &WindowScene::interfaceOrientation>(),
            objc::method<"traitCollection", &WindowScene::traitCollection>(),
        };
    }

private:
    [[nodiscard]] ui::SceneActivationState activationState() const {
        return Foreground::shared().sceneState();
    }
    [[nodiscard]] ns::Array windows() const {
        return ui::Application::sharedApplication().windows();
    }
    [[nodiscard]] ui::Screen screen() const { return ui::Screen::mainScreen(); }
    [[nodiscard]] ui::InterfaceOrientation interfaceOrientation() const {
        return ScreenGeometry::current().orientation;
    }
    [[nodiscard]] ui::TraitCollection traitCollection() const {
        return ui::Screen::mainScreen().send<"traitCollection", ui::TraitCollection>();
    }
};

} // namespace desktop
