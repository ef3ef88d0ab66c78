// Scroll views: their content's size, insets and offset.
#include "desktop/uikit/scrolling/scroll_view.hpp"

#include "bindings/uikit/navigation_controller.hpp"
#include "desktop/quartzcore/animation/animation.hpp"
#include "desktop/quartzcore/layer_values.hpp"
#include "desktop/runtime/clock.hpp"
#include "desktop/uikit/constraints/view_constraints.hpp"
#include "desktop/uikit/gestures/gesture_recognizer.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace desktop {
namespace {

/// The platform's numbers of what a scroll view does about the safe area.
enum class InsetAdjustment : long { automatic = 0, scrollableAxes = 1, never = 2, always = 3 };

/// Whether the view is, or lies first in, that of a controller in a navigation controller: bars lie
/// over it, even when there is nothing to scroll.
bool isNavigatedContent(ui::View view) {
    const auto controllerOf = [](ui::View content) {
        return content.nextResponder().as<ui::ViewController>();
    };
    const ui::View around = view.superview();
    const bool isFirst = around && around.subviews().first() == view;
    return controllerOf(view).navigationController() ||
           (isFirst && controllerOf(around).navigationController());
}

double finite(double value, double otherwise) { return std::isfinite(value) ? value : otherwise; }

} // namespace

std::vector<objc::MethodRow> ScrollView::methods() {
    using Self = ScrollView;
    std::vector<objc::MethodRow> rows{
        objc::method<"initWithFrame:", &Self::initWithFrame>(),
        objc::method<"setBounds:", &Self::setBounds>(),
        objc::method<"layoutSubviews", &Self::layoutSubviews>(),
        objc::property<"contentSize", &Self::contentSize, &Self::setContentSize>(),
        objc::property<"contentInset", &Self::contentInset, &Self::setContentInset>(),
        objc::method<"adjustedContentInset", &Self::adjustedContentInset>(),
        objc::method<"adjustedContentInsetDidChange", &Self::adjustedContentInsetDidChange>(),
        objc::property<"contentInsetAdjustmentBehavior", &Self::insetAdjustment_,
                       &Self::insetsMayHaveChanged>(),
        objc::property<"contentOffset", &Self::contentOffset, &Self::setContentOffset>(),
        objc::method<"setContentOffset:animated:", &Self::setContentOffsetAnimated>(),
        objc::method<"scrollRectToVisible:animated:", &Self::scrollRectToVisible>(),
        objc::property<"scrollIndicatorInsets", &Self::indicatorInsets,
                       &Self::setIndicatorInsets>(),
        objc::property<"verticalScrollIndicatorInsets", &Self::verticalIndicatorInsets_>(),
        objc::property<"horizontalScrollIndicatorInsets", &Self::horizontalIndicatorInsets_>(),
        objc::property<"showsVerticalScrollIndicator", &Self::showsVerticalIndicator_>(),
        objc::property<"showsHorizontalScrollIndicator", &Self::showsHorizontalIndicator_>(),
        objc::property<"indicatorStyle", &Self::indicatorStyle_>(),
        objc::method<"flashScrollIndicators", &Self::flashScrollIndicators>(),
        objc::property<"delegate", &Self::delegate_>(),
        objc::flag<"scrollEnabled", &Self::scrollEnabled_, &Self::scrollEnabledChanged>(),
        objc::flag<"pagingEnabled", &Self::pagingEnabled_>(),
        objc::flag<"directionalLockEnabled", &Self::directionalLock_>(),
        objc::property<"bounces", &Self::bounces_>(),
        objc::property<"alwaysBounceVertical", &Self::alwaysBounceVertical_>(),
        objc::property<"alwaysBounceHorizontal", &Self::alwaysBounceHorizontal_>(),
        objc::property<"scrollsToTop", &Self::scrollsToTop_>(),
        objc::property<"delaysContentTouches", &Self::delaysContentTouches_>(),
        objc::property<"canCancelContentTouches", &Self::canCancelContentTouches_>(),
        objc::method<"touchesShouldCancelInContentView:", &Self::shouldCancelIn>(),
        objc::property<"keyboardDismissMode", &Self::keyboardDismissMode_>(),
        objc::property<"decelerationRate", &Self::decelerationRate_>(),
        objc::method<"isTracking", &Self::isTracking>(),
        objc::method<"isDragging", &Self::isDragging>(),
        objc::method<"isDecelerating", &Self::isDecelerating>(),
        objc::method<"panGestureRecognizer", &Self::panGestureRecognizer>(),
        objc::method<"gestureRecognizerShouldBegin:", &Self::gestureRecognizerShouldBegin>(),
        objc::method<"handlePan:", &Self::handlePan>(),
        objc::property<"minimumZoomScale", &Self::minimumZoom_, &Self::zoomLimitsChanged>(),
        objc::property<"maximumZoomScale", &Self::maximumZoom_, &Self::zoomLimitsChanged>(),
        objc::property<"zoomScale", &Self::zoomScale, &Self::setZoomScale>(),
        objc::method<"setZoomScale:animated:", &Self::setZoomScaleAnimated>(),
        objc::property<"bouncesZoom", &Self::bouncesZoom_>(),
        objc::method<"pinchGestureRecognizer", &Self::pinchGestureRecognizer>(),
        objc::method<"handlePinch:", &Self::handlePinch>(),
    };
    std::ranges::copy(ViewConstraints::scrollViewMethods(), std::back_inserter(rows));
    return rows;
}

ui::ScrollView ScrollView::initWithFrame(CGRect frame) {
    super<"initWithFrame:", ui::View>(frame);
    self().setClipsToBounds(true);
    pan_ = ui::GestureRecognizer::with<ScrollPanKind>(self(), objc::selector<"handlePan:">());
    GestureRecognizer::of(pan_).belongsToView = true;
    pan_.setDelegate(self());
    ScrollPan::of(pan_).owner = this;
    self().addGestureRecognizer(pan_);
    return self();
}

void ScrollView::setBounds(CGRect bounds) {
    const CGPoint former = contentOffset();
    super<"setBounds:">(bounds);
    if (contentOffset() == former) {
        return;
    }
    self().setNeedsLayout();
    indicators_.place(extent());
    tell<"scrollViewDidScroll:">();
}

void ScrollView::layoutSubviews() {
    insetsMayHaveChanged();
    indicators_.place(extent());
}

void ScrollView::setContentOffset(CGPoint offset) {
    const CGPoint former = contentOffset();
    self().setBounds(
        {{finite(offset.x, former.x), finite(offset.y, former.y)}, self().bounds().size});
}

void ScrollView::setContentOffsetAnimated(CGPoint offset, bool animated) {
    stop();
    const CGPoint from = contentOffset();
    if (!animated || !Animation::areEnabled() || from == offset) {
        self().setContentOffset(offset);
        return;
    }
    constexpr double duration = 0.3; // as on the phone
    run({Clock::shared().now(), duration,
         [from, offset](double seconds) {
             const double part = TimingCurve::easeInOut().progress(seconds / duration);
             return part == 1 ? offset : blended(from, offset, part);
         },
         &ScrollView::endAnimation});
}

void ScrollView::scrollRectToVisible(CGRect rect, bool animated) {
    if (rect.size == CGSize()) {
        return;
    }
    const auto& [offset, room] = self().bounds();
    const UIEdgeInsets inset = adjustedContentInset();
    const CGPoint wanted{
        revealing(rect.origin.x, rect.size.width, offset.x, room.width, inset.left, inset.right),
        revealing(rect.origin.y, rect.size.height, offset.y, room.height, inset.top, inset.bottom)};
    if (const CGPoint target = nearest(wanted); target != offset) {
        self().setContentOffset(target, animated);
    }
}

void ScrollView::setContentSize(CGSize size) {
    const CGSize former = contentSize_;
    contentSize_ = {std::max(0.0, finite(size.width, 0)), std::max(0.0, finite(size.height, 0))};
    if (contentSize_ != former) {
        settle();
        self().setNeedsLayout();
    }
}

void ScrollView::setContentInset(UIEdgeInsets inset) {
    contentInset_ = {finite(inset.top, 0), finite(inset.left, 0), finite(inset.bottom, 0),
                     finite(inset.right, 0)};
    insetsMayHaveChanged();
}

UIEdgeInsets ScrollView::adjustedContentInset() const {
    const auto behaviour = static_cast<InsetAdjustment>(insetAdjustment_);
    if (behaviour == InsetAdjustment::never) {
        return contentInset_;
    }
    const bool always = behaviour == InsetAdjustment::always;
    const bool belowBar = behaviour == InsetAdjustment::automatic && isNavigatedContent(self());
    const UIEdgeInsets safe = self().safeAreaInsets();
    const CGSize room = self().bounds().size;
    const bool down =
        always || belowBar || alwaysBounceVertical_ || contentSize_.height > room.height;
    const bool across = always || alwaysBounceHorizontal_ || contentSize_.width > room.width;
    return {contentInset_.top + (down ? safe.top : 0),
            contentInset_.left + (across ? safe.left : 0),
            contentInset_.bottom + (down ? safe.bottom : 0),
            contentInset_.right + (across ? safe.right : 0)};
}

/// Content that lies at its start stays there when an inset before it grows or shrinks.
void ScrollView::insetsMayHaveChanged() {
    const UIEdgeInsets inset = adjustedContentInset();
    if (inset == latestInset_) {
        return;
    }
    const UIEdgeInsets former = std::exchange(latestInset_, inset);
    CGPoint offset = contentOffset();
    offset.x = offset.x == -former.left ? -inset.left : offset.x;
    offset.y = offset.y == -former.top ? -inset.top : offset.y;
    setContentOffset(offset);
    self().send<"adjustedContentInsetDidChange">();
    tell<"scrollViewDidChangeAdjustedContentInset:">();
}

ScrollRange ScrollView::horizontalRange() const {
    const UIEdgeInsets inset = adjustedContentInset();
    return ScrollRange::of(contentSize_.width, self().bounds().size.width, inset.left, inset.right);
}

ScrollRange ScrollView::verticalRange() const {
    const UIEdgeInsets inset = adjustedContentInset();
    return ScrollRange::of(contentSize_.height, self().bounds().size.height, inset.top,
                           inset.bottom);
}

CGPoint ScrollView::nearest(CGPoint offset) const {
    return {horizontalRange().nearest(offset.x), verticalRange().nearest(offset.y)};
}

/// Content that has become shorter does not leave a gap at its end.
void ScrollView::settle() {
    const auto settled = [](double offset, ScrollRange range) {
        return offset > 0 ? std::min(offset, std::max(0.0, range.high)) : offset;
    };
    if (const CGPoint offset = contentOffset(); !touched_ && !motion_) {
        setContentOffset(
            {settled(offset.x, horizontalRange()), settled(offset.y, verticalRange())});
    }
}

void ScrollView::setIndicatorInsets(UIEdgeInsets insets) {
    verticalIndicatorInsets_ = insets;
    horizontalIndicatorInsets_ = insets;
}

ScrollExtent ScrollView::extent() const {
    const auto& v = verticalIndicatorInsets_;
    const auto& h = horizontalIndicatorInsets_;
    const CGRect visible = self().bounds();
    return {contentSize_,
            visible,
            adjustedContentInset(),
            {v.top, h.left, h.bottom, v.right},
            showsVerticalIndicator_ && contentSize_.height > visible.size.height,
            showsHorizontalIndicator_ && contentSize_.width > visible.size.width};
}

void ScrollView::showIndicators() {
    // In the order of UIScrollViewIndicatorStyle: the first adapts.
    const std::array colors{ui::Color::label(), ui::Color::black(), ui::Color::white()};
    const auto style = static_cast<std::size_t>(indicatorStyle_);
    constexpr double opacity = 0.35;
    indicators_.show(self(), extent(),
                     colors[style < colors.size() ? style : 0].withAlphaComponent(opacity));
}

void ScrollView::flashScrollIndicators() {
    showIndicators();
    indicators_.fade();
}

} // namespace desktop
