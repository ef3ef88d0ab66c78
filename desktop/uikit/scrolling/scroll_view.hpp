// UIScrollView: a window onto content that is larger than the view.
#pragma once

#include "bindings/objc/weak.hpp"
#include "bindings/uikit/event.hpp"
#include "bindings/uikit/pan_gesture_recognizer.hpp"
#include "bindings/uikit/pinch_gesture_recognizer.hpp"
#include "bindings/uikit/scroll_view.hpp"

#include "desktop/class.hpp"
#include "desktop/uikit/scrolling/scroll_indicators.hpp"
#include "desktop/uikit/scrolling/scroll_rules.hpp"

#include <functional>
#include <memory>
#include <vector>

namespace desktop {

class ScrollView;

struct ScrollPanKind
    : objc::Kind<ScrollPanKind, "UIScrollViewPanGestureRecognizer", ui::PanGestureRecognizer> {
    using Kind::Kind;
};

/// The pan of a scroll view, which also tells it of fingers that do not drag.
class ScrollPan : public PlatformClass<ScrollPan, ScrollPanKind> {
public:
    static constexpr auto methods() {
        return std::array{
            objc::method<"touchesBegan:withEvent:", &ScrollPan::touchesBegan>(),
            objc::method<"reset", &ScrollPan::reset>(),
        };
    }

    /// Null once the scroll view is gone.
    ScrollView* owner = nullptr;

private:
    void touchesBegan(ns::SetOf<ui::Touch> touches, ui::Event event);
    void reset();
};

class ScrollView : public PlatformClass<ScrollView, ui::ScrollView> {
public:
    static std::vector<objc::MethodRow> methods();

    ~ScrollView();

    /// A finger has come down on the content: what moves stops.
    void fingerDown();
    /// The last finger has left the content, whether or not it dragged.
    void fingersGone();
    /// Scrolls at once, within the content; whether there was anything left to scroll.
    bool scrollBy(CGPoint points);
    /// What is shown lies that much further down in the content from now on; it stays where it is
    /// seen, and whatever moves it goes on from there.
    void contentMoved(double down);

private:
    /// Content on its way, seconds after `begin`.
    struct Motion {
        double begin;
        double duration;
        std::function<CGPoint(double seconds)> offset;
        void (ScrollView::*arrived)();
    };
    /// What a finger drags: from where, and along which axes.
    struct Drag {
        CGPoint wanted; ///< the offset that the finger asks for, less its translation
        CGPoint start;
        bool horizontal;
        bool vertical;
    };

    ui::ScrollView initWithFrame(CGRect frame);
    void setBounds(CGRect bounds);
    void layoutSubviews();
    /// The content moves with the bounds' origin.
    [[nodiscard]] CGPoint contentOffset() const { return self().bounds().origin; }
    void setContentOffset(CGPoint offset);
    void setContentOffsetAnimated(CGPoint offset, bool animated);
    void scrollRectToVisible(CGRect rect, bool animated);
    [[nodiscard]] CGSize contentSize() const { return contentSize_; }
    void setContentSize(CGSize size);
    [[nodiscard]] UIEdgeInsets contentInset() const { return contentInset_; }
    void setContentInset(UIEdgeInsets inset);
    [[nodiscard]] UIEdgeInsets adjustedContentInset() const;
    void insetsMayHaveChanged();
    void adjustedContentInsetDidChange() {}
    [[nodiscard]] UIEdgeInsets indicatorInsets() const { return verticalIndicatorInsets_; }
    void setIndicatorInsets(UIEdgeInsets insets);
    void flashScrollIndicators();
    void showIndicators();
    [[nodiscard]] ScrollExtent extent() const;
    [[nodiscard]] ScrollRange horizontalRange() const;
    [[nodiscard]] ScrollRange verticalRange() const;
    [[nodiscard]] CGPoint nearest(CGPoint offset) const;
    void settle();

    // Fingers and motion, in scroll_view_dragging.cpp.
    [[nodiscard]] ui::PanGestureRecognizer panGestureRecognizer() const { return pan_; }
    [[nodiscard]] bool isTracking() const { return touched_; }
    [[nodiscard]] bool isDragging() const { return dragging_; }
    [[nodiscard]] bool isDecelerating() const { return decelerating_; }
    void scrollEnabledChanged() { pan_.setEnabled(scrollEnabled_); }
    [[nodiscard]] bool gestureRecognizerShouldBegin(ui::GestureRecognizer recognizer) const;
    [[nodiscard]] bool contentKeepsTouch() const;
    [[nodiscard]] bool shouldCancelIn(ui::View content) const;
    [[nodiscard]] bool scrollsHorizontally() const;
    [[nodiscard]] bool scrollsVertically() const;
    void handlePan(ui::PanGestureRecognizer pan);
    void beginDrag();
    void follow();
    void release(CGPoint velocity);
    [[nodiscard]] Coast coast(double offset, double velocity, double start, double length,
                              ScrollRange range) const;
    void decelerate(const Coast& x, const Coast& y);
    void run(Motion motion);
    [[nodiscard]] bool advance(const Motion& motion, double now);
    void stop();
    void endDecelerating();
    void endAnimation();

    // Zooming, in scroll_view_zooming.cpp.
    [[nodiscard]] ui::PinchGestureRecognizer pinchGestureRecognizer() const { return pinch_; }
    [[nodiscard]] ui::View zoomedView() const;
    [[nodiscard]] double zoomScale() const;
    void zoomLimitsChanged();
    [[nodiscard]] double allowedZoom(double scale) const;
    [[nodiscard]] double shownZoom(double wanted) const;
    void setZoomScale(double scale);
    void setZoomScaleAnimated(double scale, bool animated);
    void zoomTo(double scale, CGPoint place);
    void handlePinch(ui::PinchGestureRecognizer pinch);
    void endZooming();
    template <objc::Literal Name, class... Arguments>
    void tell(Arguments... arguments) const {
        const SEL name = objc::selector<Name>();
        if (const auto told = delegate_.strong(); told.respondsToSelector(name)) {
            objc::sendTo(told.raw(), name, self(), arguments...);
        }
    }

    CGSize contentSize_;
    UIEdgeInsets contentInset_;
    UIEdgeInsets latestInset_; // as the offset has taken account of it
    UIEdgeInsets verticalIndicatorInsets_;
    UIEdgeInsets horizontalIndicatorInsets_;
    long insetAdjustment_ = 0;
    long indicatorStyle_ = 0;
    ui::KeyboardDismissMode keyboardDismissMode_ = ui::KeyboardDismissMode::none;
    double decelerationRate_ = normalDeceleration;
    bool scrollEnabled_ = true;
    bool pagingEnabled_ = false;
    bool bounces_ = true;
    bool alwaysBounceVertical_ = false;
    bool alwaysBounceHorizontal_ = false;
    bool showsVerticalIndicator_ = true;
    bool showsHorizontalIndicator_ = true;
    bool directionalLock_ = false;
    bool scrollsToTop_ = true;
    bool delaysContentTouches_ = true;
    bool canCancelContentTouches_ = true;
    bool touched_ = false;
    double touchedAt_ = 0;
    bool dragging_ = false;
    bool decelerating_ = false;
    objc::Weak<objc::Object> delegate_;
    objc::Strong<ScrollPanKind> pan_;
    objc::Strong<ui::PinchGestureRecognizer> pinch_;
    double minimumZoom_ = 1;
    double maximumZoom_ = 1;
    double zoomBegan_ = 1;
    bool bouncesZoom_ = true;
    Drag drag_{};
    std::shared_ptr<Motion> motion_;
    ScrollIndicators indicators_;
};

} // namespace desktop
