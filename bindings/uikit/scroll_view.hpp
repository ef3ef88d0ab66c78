// UIScrollView.
#pragma once

#include "bindings/uikit/view.hpp"

/// Where a scroll view is to come to rest, which its delegate may change.
template <>
struct objc::Encoding<CGPoint*> {
    static constexpr Literal value = "^{CGPoint=dd}";
};

namespace ui {

/// How dragging a scroll view puts the keyboard away; the platform's numbers.
enum class KeyboardDismissMode : long {
    none = 0,
    onDrag = 1,      ///< as soon as content is dragged
    interactive = 2, ///< the keyboard follows a finger that is dragged down over it
};

/// Whether a scroll view adds the safe area to its insets; the platform's numbers.
enum class ContentInsetAdjustmentBehavior : long {
    automatic = 0,
    scrollableAxes = 1,
    never = 2,
    always = 3,
};

struct ScrollView : objc::Kind<ScrollView, "UIScrollView", View> {
    using Kind::Kind;

    static ScrollView withFrame(CGRect frame) { return make<"initWithFrame:">(frame); }

    [[nodiscard]] CGSize contentSize() const { return send<"contentSize", CGSize>(); }
    void setContentSize(CGSize size) const { send<"setContentSize:">(size); }
    [[nodiscard]] CGPoint contentOffset() const { return send<"contentOffset", CGPoint>(); }
    void setScrollEnabled(bool enabled) const { send<"setScrollEnabled:">(enabled); }
    void setContentOffset(CGPoint offset) const { send<"setContentOffset:">(offset); }
    void setContentOffset(CGPoint offset, bool animated) const {
        send<"setContentOffset:animated:">(offset, animated);
    }
    [[nodiscard]] UIEdgeInsets contentInset() const { return send<"contentInset", UIEdgeInsets>(); }
    void setContentInset(UIEdgeInsets insets) const { send<"setContentInset:">(insets); }
    void setContentInsetAdjustmentBehavior(ContentInsetAdjustmentBehavior behavior) const {
        send<"setContentInsetAdjustmentBehavior:">(behavior);
    }
    /// Whether content that fits can be dragged up and down all the same, and springs back.
    void setAlwaysBounceVertical(bool bounces) const { send<"setAlwaysBounceVertical:">(bounces); }
    void setKeyboardDismissMode(KeyboardDismissMode mode) const {
        send<"setKeyboardDismissMode:">(mode);
    }
    /// Not retained.
    void setDelegate(objc::Object delegate) const { send<"setDelegate:">(delegate); }
    /// Content comes to rest at whole pages, each as large as the view.
    void setPagingEnabled(bool paging) const { send<"setPagingEnabled:">(paging); }
    // Two fingers zoom what the delegate answers to viewForZoomingInScrollView:, between these.
    void setMinimumZoomScale(double scale) const { send<"setMinimumZoomScale:">(scale); }
    void setMaximumZoomScale(double scale) const { send<"setMaximumZoomScale:">(scale); }
    void setBouncesZoom(bool bounces) const { send<"setBouncesZoom:">(bounces); }
    void setScrollIndicatorInsets(UIEdgeInsets insets) const {
        send<"setScrollIndicatorInsets:">(insets);
    }
};

} // namespace ui
