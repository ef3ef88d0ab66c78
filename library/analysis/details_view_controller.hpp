// DetailsViewController: which libraries a crash report names, the system's apart from the others.
#pragma once

#include "bindings/uikit/view_controller.hpp"
#include "library/analysis/messages.hpp"

namespace wentra::analysis {

/// Shown by a navigation controller, whose bar holds its search and its buttons. Main thread only.
struct DetailsViewController
    : objc::Kind<DetailsViewController, "DetailsViewController", ui::ViewController> {
    using Kind::Kind;

    static DetailsViewController with(const Messages& messages) {
        const auto controller = make();
        controller.send<"setSystemMessage:">(ns::String::from(messages.system));
        controller.send<"setJailbreakMessage:">(ns::String::from(messages.addOns));
        return controller;
    }
};

/// Declares the class.
[[gnu::cold]] void registerDetailsViewController();

} // namespace wentra::analysis
