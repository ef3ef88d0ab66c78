// UITableViewController.
#pragma once

#include "bindings/uikit/table_view.hpp"
#include "bindings/uikit/view_controller.hpp"

namespace ui {

struct TableViewController
    : objc::Kind<TableViewController, "UITableViewController", ViewController> {
    using Kind::Kind;

    static TableViewController withStyle(TableViewStyle style) {
        return make<"initWithStyle:">(style);
    }
    [[nodiscard]] TableView tableView() const { return send<"tableView", TableView>(); }
};

} // namespace ui
