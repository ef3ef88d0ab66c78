// UITableView.
#pragma once

#include "bindings/uikit/scroll_view.hpp"

namespace ui {

struct TableView : objc::Kind<TableView, "UITableView", ScrollView> {
    using Kind::Kind;
};

} // namespace ui
