// Scroll views under two fingers: the delegate's view grows and shrinks around the place between
// them.
#include "desktop/uikit/scrolling/scroll_view.hpp"

#include "bindings/coregraphics/geometry.hpp"
#include "desktop/uikit/gestures/gesture_recognizer.hpp"
#include "desktop/uikit/scrolling/scroll_rules.hpp"

#include <algorithm>
#include <cmath>

namespace desktop {

ui::View ScrollView::zoomedView() const {
    const SEL name = objc::selector<"viewForZoomingInScrollView:">();
    const auto asked = delegate_.strong();
    return asked.respondsToSelector(name) ? objc::sendTo<ui::View>(asked.raw(), name, self())
                                          : ui::View();
}

double ScrollView::zoomScale() const {
    const ui::View view = zoomedView();
    return view ? view.transform().a : 1;
}

/// There is a pinch to zoom by as soon as there is something to choose.
void ScrollView::zoomLimitsChanged() {
    if (maximumZoom_ > minimumZoom_ && !pinch_) {
        pinch_ = ui::GestureRecognizer::with<ui::PinchGestureRecognizer>(
            self(), objc::selector<"handlePinch:">());
        GestureRecognizer::of(pinch_).belongsToView = true;
        self().addGestureRecognizer(pinch_);
    }
    pinch_.setEnabled(maximumZoom_ > minimumZoom_);
}

double ScrollView::allowedZoom(double scale) const {
    return std::isfinite(scale)
               ? std::clamp(scale, std::min(minimumZoom_, maximumZoom_), maximumZoom_)
               : zoomScale();
}

void ScrollView::setZoomScale(double scale) { setZoomScaleAnimated(scale, false); }

void ScrollView::setZoomScaleAnimated(double scale, bool animated) {
    constexpr double duration = 0.25;
    const CGRect seen = self().bounds();
    const CGPoint middle{seen.size.width / 2, seen.size.height / 2};
    const auto zoom = [this, target = allowedZoom(scale), middle] { zoomTo(target, middle); };
    if (animated) {
        ui::View::animate(duration, ui::View::Changes::from(zoom));
    } else {
        zoom();
    }
}

/// `place` is where on the screen the content stays, from the view's top left corner.
void ScrollView::zoomTo(double scale, CGPoint place) {
    const ui::View view = zoomedView();
    if (!view) {
        return;
    }
    const double ratio = scale / zoomScale();
    const CGPoint offset = contentOffset();
    const CGPoint origin = view.frame().origin;
    const CGSize size = view.bounds().size;
    const CGPoint corner{origin.x * ratio, origin.y * ratio};
    view.setTransform({scale, 0, 0, scale, 0, 0});
    view.setCenter({corner.x + size.width * scale / 2, corner.y + size.height * scale / 2});
    // What is around the view grows with it.
    self().setContentSize({2 * corner.x + size.width * scale, 2 * corner.y + size.height * scale});
    self().setContentOffset(
        nearest({(offset.x + place.x) * ratio - place.x, (offset.y + place.y) * ratio - place.y}));
    tell<"scrollViewDidZoom:">();
}

void ScrollView::handlePinch(ui::PinchGestureRecognizer pinch) {
    const objc::Strong<ui::ScrollView> kept = self(); // a delegate may drop it
    const CGPoint offset = contentOffset();
    const CGPoint finger = pinch.locationIn(self());
    const CGPoint place{finger.x - offset.x, finger.y - offset.y};
    switch (pinch.state()) {
    case ui::GestureState::began:
        stop();
        zoomBegan_ = zoomScale();
        tell<"scrollViewWillBeginZooming:withView:">(zoomedView().raw());
        break;
    case ui::GestureState::changed:
        zoomTo(shownZoom(zoomBegan_ * pinch.scale()), place);
        break;
    default:
        endZooming();
    }
}

/// Beyond the limits the content follows the fingers ever less, or not at all.
double ScrollView::shownZoom(double wanted) const {
    constexpr double resistance = 0.3;
    const double allowed = allowedZoom(wanted);
    return bouncesZoom_ ? allowed * std::pow(wanted / allowed, resistance) : allowed;
}

void ScrollView::endZooming() {
    const double scale = allowedZoom(zoomScale());
    if (scale != zoomScale()) {
        setZoomScaleAnimated(scale, true);
    }
    tell<"scrollViewDidEndZooming:withView:atScale:">(zoomedView().raw(), scale);
}

} // namespace desktop
