// What is in front: the application, the home screen, or nothing while the phone is locked.
#pragma once

#include "bindings/coregraphics/geometry.hpp"
#include "bindings/uikit/window_scene.hpp"

namespace desktop {

/// Whether an application runs in front; the platform's numbers.
enum class ApplicationState : long { active = 0, background = 2 };

/// The application is told when it leaves the front and when it comes back, as on the phone: its
/// delegate, and whoever listens to its or its scene's notifications. In the background it is never
/// suspended. Main thread.
class Foreground {
public:
    static Foreground& shared();

    [[nodiscard]] bool isHomeScreenShown() const { return home_; }
    /// Fingers that are on the screen are taken away.
    void showHomeScreen(bool shown) { become(shown, locked_); }
    [[nodiscard]] bool isLocked() const { return locked_; }
    void lock(bool locked) { become(home_, locked); }

    /// Whether the application gets fingers and keys, and is to be seen.
    [[nodiscard]] bool hasApplication() const { return !home_ && !locked_; }
    [[nodiscard]] ApplicationState applicationState() const { return state_; }
    [[nodiscard]] ui::SceneActivationState sceneState() const;

    /// A finger comes down where no application is: on its icon, it comes back.
    void touched(CGPoint screenPoint);

private:
    Foreground() = default;

    void become(bool home, bool locked);
    void leave();
    void enter();

    bool home_ = false;
    bool locked_ = false;
    ApplicationState state_ = ApplicationState::active;
};

} // namespace desktop
