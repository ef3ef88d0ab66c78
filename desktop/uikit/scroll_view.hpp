// UIScrollView: a window onto content that is larger than the view.
#pragma once

#include "bindings/uikit/scroll_view.hpp"

#include "desktop/class.hpp"

namespace desktop {

class ScrollView : public PlatformClass<ScrollView, ui::ScrollView> {
public:
    static auto methods() {
        return std::array{
            objc::method<"initWithFrame:", &ScrollView::initWithFrame>(),
            objc::property<"contentSize", &ScrollView::contentSize_>(),
            objc::property<"contentInset", &ScrollView::contentInset_>(),
            objc::property<"contentOffset", &ScrollView::contentOffset,
                           &ScrollView::setContentOffset>(),
        };
    }

private:
    ui::ScrollView initWithFrame(CGRect frame) {
        super<"initWithFrame:", ui::View>(frame);
        self().setClipsToBounds(true);
        return self();
    }
    /// The content moves with the bounds' origin.
    [[nodiscard]] CGPoint contentOffset() const { return self().bounds().origin; }
    void setContentOffset(CGPoint offset) { self().setBounds({offset, self().bounds().size}); }

    CGSize contentSize_;
    UIEdgeInsets contentInset_;
};

} // namespace desktop
