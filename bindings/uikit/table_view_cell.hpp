// UITableViewCell: a row of a table.
#pragma once

#include "bindings/uikit/label.hpp"

namespace ui {

struct TableViewCell : objc::Kind<TableViewCell, "UITableViewCell", View> {
    using Kind::Kind;

    [[nodiscard]] Label textLabel() const { return send<"textLabel", Label>(); }
};

} // namespace ui
