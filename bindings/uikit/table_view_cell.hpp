// UITableViewCell: a row of a table.
#pragma once

#include "bindings/uikit/view.hpp"

namespace ui {

struct TableViewCell : objc::Kind<TableViewCell, "UITableViewCell", View> {
    using Kind::Kind;
};

} // namespace ui
