// TextViewController: a full-screen editor of plain text.
#pragma once

#include "bindings/objc/block.hpp"
#include "bindings/uikit/text_view.hpp"
#include "bindings/uikit/view_controller.hpp"

namespace wentra::clipboard {

/// Made anew for each use and gone with its dismissal. Main thread only.
struct TextViewController
    : objc::Kind<TextViewController, "TextViewController", ui::ViewController> {
    using Kind::Kind;
    /// Called with the edited text.
    using Done = objc::Block<void(ns::String)>;

    /// The text shown once the view loads.
    void setDisplayText(ns::String text) const { send<"setDisplayText:">(text); }
    /// Called when the user confirms, before the editor goes.
    void setDoneEditingCallback(Done done) const { send<"setDoneEditingCallback:">(done); }
    /// Presents the editor above everything. The text replaces what is shown only when the view is
    /// loaded already: set the display text first.
    void showWithText(ns::String text) const { send<"showWithText:">(text); }
};

/// Declares the class.
[[gnu::cold]] void registerTextViewController();

} // namespace wentra::clipboard
