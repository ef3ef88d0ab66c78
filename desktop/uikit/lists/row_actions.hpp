// What a swiped row offers: the application's actions, or the system's own delete.
#pragma once

#include "bindings/foundation/string.hpp"
#include "bindings/uikit/color.hpp"
#include "bindings/uikit/view.hpp"

#include <functional>
#include <vector>

namespace desktop {

struct RowAction {
    objc::Strong<ns::String> title;
    objc::Strong<ui::Color> color;
    /// Acts for the row; the view is the one that was chosen on.
    std::function<void(ui::View source)> perform;
};

struct RowActions {
    std::vector<RowAction> list; ///< from the row's right edge inwards
    bool performsFirst = true;   ///< by a swipe all across the row
};

} // namespace desktop
