// UITableViewLabel: the label of a row of Settings.
#pragma once

#include "bindings/uikit/label.hpp"

namespace ui {

struct TableViewLabel : objc::Kind<TableViewLabel, "UITableViewLabel", Label> {
    using Kind::Kind;

    static TableViewLabel withFrame(CGRect frame) { return make<"initWithFrame:">(frame); }
};

} // namespace ui
