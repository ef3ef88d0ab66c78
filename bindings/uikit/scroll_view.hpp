// UIScrollView.
#pragma once

#include "bindings/uikit/view.hpp"

/// Where a scroll view is to come to rest, which its delegate may change.
template <>
struct objc::Encoding<CGPoint*> {
    static constexpr Literal value = "^{CGPoint=dd}";
};

namespace ui {

struct ScrollView : objc::Kind<ScrollView, "UIScrollView", View> {
    using Kind::Kind;

    static ScrollView withFrame(CGRect frame) { return make<"initWithFrame:">(frame); }

    [[nodiscard]] CGSize contentSize() const { return send<"contentSize", CGSize>(); }
    void setContentSize(CGSize size) const { send<"setContentSize:">(size); }
    [[nodiscard]] CGPoint contentOffset() const { return send<"contentOffset", CGPoint>(); }
    void setScrollEnabled(bool enabled) const { send<"setScrollEnabled:">(enabled); }
    void setContentOffset(CGPoint offset) const { send<"setContentOffset:">(offset); }
    [[nodiscard]] UIEdgeInsets contentInset() const { return send<"contentInset", UIEdgeInsets>(); }
    void setContentInset(UIEdgeInsets insets) const { send<"setContentInset:">(insets); }
    void setScrollIndicatorInsets(UIEdgeInsets insets) const {
        send<"setScrollIndicatorInsets:">(insets);
    }
};

} // namespace ui
