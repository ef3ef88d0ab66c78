// PopoverContentViewController: a grid of quick switches.
#pragma once

#include "bindings/foundation/array.hpp"
#include "bindings/uikit/view_controller.hpp"

namespace wentra::clipboard {

/// Fifteen switches of the preferences, each with its title and its state. Made to be presented as
/// a popover, whose delegate it is. Main thread only.
struct PopoverContentViewController
    : objc::Kind<PopoverContentViewController, "PopoverContentViewController", ui::ViewController> {
    using Kind::Kind;

    /// The switches' titles and the preferences' keys, in the same order; at least fifteen each.
    void setTitles(ns::Array titles) const { send<"setButtonArray:">(titles); }
    void setKeys(ns::Array keys) const { send<"setKeysArray:">(keys); }
};

/// Declares the class.
[[gnu::cold]] void registerPopoverContentViewController();

} // namespace wentra::clipboard
