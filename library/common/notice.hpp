// A short line of text over a view, which goes by itself.
#pragma once

#include "bindings/uikit/view.hpp"

namespace wentra {

/// The size of every notice, in points.
inline constexpr CGSize noticeSize{260, 40};

/// Shows the text for that many seconds, in the middle of the view's width, a little to the left,
/// and at `height`, a fraction of the view's height. Main thread.
void showNotice(ui::View over, ns::String text, double height, double seconds);

} // namespace wentra
