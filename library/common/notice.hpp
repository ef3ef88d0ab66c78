// A short line of text over everything, which goes by itself.
#pragma once

#include "bindings/uikit/view.hpp"

namespace wentra {

/// Where a notice lies in the view that it is shown over.
struct NoticePlace {
    /// The part of the view's height that its place counts from.
    double height = 0.5;
    /// Points from the view's middle to the notice's left edge.
    double left = 135;
    /// Points from that height up to the notice's top edge.
    double above = 20;
};

/// The frame of a notice in a view of that size: 260 by 40 points.
[[nodiscard]] CGRect noticeFrame(CGSize view, const NoticePlace& place);

/// Shows the text for that many seconds in front of all that is in the view's window, at the place
/// of a notice in a view of that size. Nothing for a view without a window. Main thread.
void showNotice(ui::View view, ns::String text, const NoticePlace& place, double seconds);

} // namespace wentra
