// UmacaTableViewController: the list of utilities.
#pragma once

#include "bindings/uikit/table_view_controller.hpp"

namespace wentra::utilities {

/// Shown as a popover. A row's tool runs when it is chosen, and the list goes. Main thread only.
struct UmacaTableViewController
    : objc::Kind<UmacaTableViewController, "UmacaTableViewController", ui::TableViewController> {
    using Kind::Kind;

    static UmacaTableViewController plain() {
        return make<"initWithStyle:">(ui::TableViewStyle::plain);
    }
};

/// Declares the class.
[[gnu::cold]] void registerUmacaTableViewController();

} // namespace wentra::utilities
