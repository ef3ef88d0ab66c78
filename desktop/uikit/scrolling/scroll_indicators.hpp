// The marks at a scroll view's edges that show which part of the content is seen.
#pragma once

#include "bindings/uikit/view.hpp"

namespace desktop {

/// What the marks show.
struct ScrollExtent {
    CGSize content;
    CGRect visible;       ///< the view's bounds, in the content
    UIEdgeInsets covered; ///< of the bounds, by insets of the content
    UIEdgeInsets inset;   ///< of the marks, on top of that
    bool vertical;        ///< whether there is such a mark
    bool horizontal;
};

/// The marks are views in the scroll view only while they are to be seen. Main thread.
class ScrollIndicators {
public:
    /// Brings the marks up, or to where they belong now.
    void show(ui::View scrollView, const ScrollExtent& extent, ui::Color color);
    /// Moves marks that are up.
    void place(const ScrollExtent& extent) const;
    /// Lets the marks fade, and go.
    void fade();

private:
    objc::Strong<ui::View> vertical_;
    objc::Strong<ui::View> horizontal_;
};

} // namespace desktop
