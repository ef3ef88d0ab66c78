// What stands in a bar.
#pragma once

#include "bindings/uikit/bar_button_item.hpp"

#include <span>

namespace wentra {

/// The items, with room between each two that takes up what the bar has left.
[[nodiscard]] ns::Array spread(std::span<const ui::BarButtonItem> items);

} // namespace wentra
