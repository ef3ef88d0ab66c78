// ZKViewModel: the owner of the floating toolbox, one in each process.
#pragma once

#include "bindings/uikit/view_controller.hpp"

namespace wentra::toolbox {

/// Owns the floating button (the ball), the panel that it opens, and the dimming behind the panel;
/// follows the general pasteboard. A controller by its class only: it is never presented.
struct ViewModel : objc::Kind<ViewModel, "ZKViewModel", ui::ViewController> {
    using Kind::Kind;

    void updateView() const { send<"updateView">(); }
    void showTextPanel() const { send<"showTextPanel">(); }
    void hideFloatingView() const { send<"hideFloatingView">(); }
};

/// Declares the class.
[[gnu::cold]] void registerViewModel();

/// Creates the process's view model on the main queue, 0.3 s from now, and tells it to update.
[[gnu::cold]] void scheduleViewModel();

} // namespace wentra::toolbox
