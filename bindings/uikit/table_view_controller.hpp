// UITableViewController.
#pragma once

#include "bindings/uikit/view_controller.hpp"

namespace ui {

struct TableViewController
    : objc::Kind<TableViewController, "UITableViewController", ViewController> {
    using Kind::Kind;
};

} // namespace ui
