// MovableAlertView: a dialog that can be moved, with a text and filters that pick lines of it.
#pragma once

#include "bindings/uikit/view.hpp"

namespace wentra::analysis {

struct MovableAlertView : objc::Kind<MovableAlertView, "MovableAlertView", ui::View> {
    using Kind::Kind;

    /// 318 by 545 points, in the middle of the screen until it is moved. Main thread.
    static MovableAlertView with(ns::String title, ns::String message) {
        return make<"initWithTitle:message:">(title, message);
    }
};

/// Declares the class.
[[gnu::cold]] void registerMovableAlertView();

} // namespace wentra::analysis
