// A view as a node of the protocol's tree.
#pragma once

#include "bindings/uikit/view.hpp"
#include "desktop/host/values.hpp"

namespace desktop::host {

/// The text that the view shows, its title: nil when it has none. A button has the title of its
/// present state.

[[nodiscard]] ns::String textOf(ui::View view);
[[nodiscard]] ns::String titleOf(ui::View view);

/// Where the view's bounds are in its window.
[[nodiscard]] CGRect rectInWindow(ui::View view);

/// The node without its "children". The layout must be up to date.
[[nodiscard]] Json viewNode(Values& values, ui::View view);

/// The node with the nodes of its subviews, back to front.
[[nodiscard]] Json viewTree(Values& values, ui::View view);

} // namespace desktop::host
