// Finding views by what they show.
#pragma once

#include "bindings/uikit/view.hpp"
#include "desktop/host/values.hpp"

namespace desktop::host {

/// The nodes of the views that meet every condition of `where` ({"class":…, "text":…,
/// "visible":…}), in tree order, window by window. Throws RequestError for a condition that does
/// not exist or has a value of the wrong kind.
[[nodiscard]] Json findNodes(Values& values, const Json& where);

/// The innermost view in front at that point of the screen, whether or not it takes touches; nil
/// for none. The layout must be up to date.
[[nodiscard]] ui::View viewSeenAt(CGPoint screenPoint);

} // namespace desktop::host
