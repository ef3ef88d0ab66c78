// UITableViewCell: a row of a table.
#pragma once

#include "bindings/uikit/label.hpp"

namespace ui {

/// The platform's numbers.
enum class TableViewCellStyle : long { default_ = 0, value1 = 1, value2 = 2, subtitle = 3 };

struct TableViewCell : objc::Kind<TableViewCell, "UITableViewCell", View> {
    using Kind::Kind;

    /// 320 by 44 points until a table places it.
    static TableViewCell withStyle(TableViewCellStyle style, ns::String reuseIdentifier) {
        return make<"initWithStyle:reuseIdentifier:">(style, reuseIdentifier);
    }
    [[nodiscard]] Label textLabel() const { return send<"textLabel", Label>(); }
};

} // namespace ui
