// ClipboardTableViewController: the list of the texts that were copied.
#pragma once

#include "bindings/objc/block.hpp"
#include "bindings/uikit/view_controller.hpp"

namespace wentra::clipboard {

/// Shows the application's copied texts, and records those that are copied while it lives. Main
/// thread only.
struct ClipboardTableViewController
    : objc::Kind<ClipboardTableViewController, "ClipboardTableViewController", ui::ViewController> {
    using Kind::Kind;
    using Dismissal = objc::Block<void()>;

    /// Called once a text has been chosen, which is on the pasteboard by then. The list does not go
    /// by itself.
    void setDismissBlock(Dismissal dismissal) const { send<"setDismissBlock:">(dismissal); }
};

/// Declares the class.
[[gnu::cold]] void registerClipboardTableViewController();

} // namespace wentra::clipboard
