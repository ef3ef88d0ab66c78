// Hit-testing fingers and telling recognizers, then views, what they do.
#include "desktop/uikit/events/touch_dispatcher.hpp"

#include "bindings/objc/pool.hpp"
#include "desktop/coregraphics/affine.hpp"
#include "desktop/runtime/clock.hpp"
#include "desktop/uikit/application/application.hpp"
#include "desktop/uikit/events/event.hpp"
#include "desktop/uikit/gestures/gesture_recognizer.hpp"
#include "desktop/uikit/gestures/tap_rule.hpp"
#include "desktop/uikit/views/view.hpp"

#include <algorithm>

namespace desktop {
namespace {

using Touches = TouchDispatcher::Touches;

/// What is under a point of the screen.
struct Hit {
    objc::Strong<ui::Window> window;
    objc::Strong<ui::View> view;
    CGPoint point; ///< in the window
};

Hit hitAt(CGPoint screenPoint) {
    if (!Foreground::shared().hasApplication()) {
        return {nullptr, nullptr, screenPoint};
    }
    const auto& visible = Application::shared().visibleWindows();
    // From the front. Kept, and a copy: a view's own test may change the list.
    const std::vector<objc::Strong<ui::Window>> windows(visible.rbegin(), visible.rend());
    for (const auto& window : windows) {
        const CGPoint point = intoWindow(window, screenPoint);
        if (const auto view = window.hitTest(point, nullptr); view) {
            return {window, view, point};
        }
    }
    return {nullptr, nullptr, screenPoint};
}

SEL handlerOf(ui::TouchPhase phase) {
    switch (phase) {
    case ui::TouchPhase::began:
        return objc::selector<"touchesBegan:withEvent:">();
    case ui::TouchPhase::ended:
        return objc::selector<"touchesEnded:withEvent:">();
    case ui::TouchPhase::cancelled:
        return objc::selector<"touchesCancelled:withEvent:">();
    default:
        return objc::selector<"touchesMoved:withEvent:">();
    }
}

ns::SetOf<ui::Touch> setOf(const Touches& touches) {
    const auto array = ns::MutableArray::make();
    for (const auto& touch : touches) {
        array.add(touch);
    }
    return ns::Set::withArray(array).assume<ns::SetOf<ui::Touch>>();
}

void tell(objc::Object receiver, ui::TouchPhase phase, const Touches& touches, ui::Event event) {
    if (!touches.empty()) {
        objc::sendTo(receiver.raw(), handlerOf(phase), setOf(touches), event);
    }
}

template <class Predicate>
Touches those(const Touches& touches, Predicate predicate) {
    Touches chosen;
    std::ranges::copy_if(touches, std::back_inserter(chosen), predicate);
    return chosen;
}

template <class Kind>
void addOnce(std::vector<objc::Strong<Kind>>& list, const objc::Strong<Kind>& one) {
    if (one && std::ranges::find(list, one) == list.end()) {
        list.push_back(one);
    }
}

std::vector<objc::Strong<ui::GestureRecognizer>> recognizersOf(const Touches& touches) {
    std::vector<objc::Strong<ui::GestureRecognizer>> all;
    for (const auto& touch : touches) {
        for (const auto& recognizer : Touch::of(touch).recognizers) {
            addOnce(all, recognizer);
        }
    }
    return all;
}

/// The recognizers of the view and of those around it, from the inside out; those of one view in
/// the order in which they were added, but the view's own last.
void assignRecognizers(ui::Touch touch) {
    // Kept: a delegate that is asked may take the view away.
    for (objc::Strong<ui::View> view = Touch::of(touch).view(); view; view = view.superview()) {
        for (const bool belongsToView : {false, true}) {
            for (const ui::GestureRecognizer recognizer : view.gestureRecognizers()) {
                GestureRecognizer& peer = GestureRecognizer::of(recognizer);
                if (peer.belongsToView == belongsToView && peer.receives(touch)) {
                    Touch::of(touch).recognizers.emplace_back(recognizer);
                }
            }
        }
    }
}

void tellRecognizers(ui::TouchPhase phase, const Touches& changed, ui::Event event) {
    for (const auto& recognizer : recognizersOf(changed)) {
        const GestureRecognizer& peer = GestureRecognizer::of(recognizer);
        tell(recognizer, phase,
             those(changed, [&](const auto& touch) { return peer.follows(touch); }), event);
    }
}

void tellViews(ui::TouchPhase phase, const Touches& changed, ui::Event event) {
    std::vector<objc::Strong<ui::View>> views;
    for (const auto& touch : changed) {
        addOnce(views, Touch::of(touch).view());
    }
    for (const auto& view : views) {
        const Touches own = those(changed, [&](const auto& touch) {
            return Touch::of(touch).view() == view && Touch::of(touch).reachesView;
        });
        for (const auto& touch : own) {
            Touch::of(touch).knownToView = true;
        }
        tell(view, phase, own, event);
    }
}

} // namespace

CGPoint intoWindow(ui::Window window, CGPoint screenPoint) {
    const auto toWindow = inverted(View::of(window).layer().toSuperlayer());
    return toWindow ? apply(*toWindow, screenPoint) : screenPoint;
}

TouchDispatcher& TouchDispatcher::shared() {
    static auto* dispatcher = new TouchDispatcher; // its touches live until the process ends
    return *dispatcher;
}

ui::View TouchDispatcher::viewAt(CGPoint screenPoint) { return hitAt(screenPoint).view; }

void TouchDispatcher::begin(std::span<const TouchPoint> points) {
    const objc::Pool pool;
    Touches fresh;
    for (const auto& [id, screenPoint] : points) {
        if (isDown(id)) {
            continue;
        }
        const Hit hit = hitAt(screenPoint);
        if (!hit.view) {
            Foreground::shared().touched(screenPoint);
        }
        const auto touch = Touch::began(hit.window, hit.view, hit.point, tapCountAt(hit.point));
        // A view that does not ask for several touches gets the first one only.
        Touch::of(touch).reachesView = hit.view.isMultipleTouchEnabled() ||
                                       std::ranges::none_of(touches_, [&](const auto& other) {
                                           return Touch::of(other.second).view() == hit.view;
                                       });
        touches_.emplace(id, touch);
        fresh.push_back(touch);
        assignRecognizers(touch);
    }
    deliver(ui::TouchPhase::began, fresh);
}

void TouchDispatcher::move(std::span<const TouchPoint> points) {
    const objc::Pool pool;
    for (const auto& [id, touch] : touches_) {
        Touch::of(touch).setPhase(ui::TouchPhase::stationary);
    }
    place(points);
    deliver(ui::TouchPhase::moved, known(points));
}

void TouchDispatcher::place(std::span<const TouchPoint> points) {
    for (const auto& [id, screenPoint] : points) {
        if (const auto touch = touches_.find(id); touch != touches_.end()) {
            Touch& peer = Touch::of(touch->second);
            peer.moveTo(peer.window() ? intoWindow(peer.window(), screenPoint) : screenPoint);
        }
    }
}

void TouchDispatcher::end(std::span<const TouchPoint> points) {
    leave(points, ui::TouchPhase::ended);
}

void TouchDispatcher::cancel(std::span<const TouchPoint> points) {
    leave(points, ui::TouchPhase::cancelled);
}

void TouchDispatcher::cancelAll() {
    std::vector<TouchPoint> points;
    for (const auto& [id, touch] : touches_) {
        points.push_back({id, {}});
    }
    cancel(points);
}

void TouchDispatcher::leave(std::span<const TouchPoint> points, ui::TouchPhase phase) {
    const objc::Pool pool;
    const Touches leaving = known(points);
    for (const auto& touch : leaving) {
        const Touch& peer = Touch::of(touch);
        latestTap_ = {Clock::shared().now(), peer.finger().point, peer.tapCount()};
    }
    deliver(phase, leaving);
    for (const TouchPoint& point : points) {
        touches_.erase(point.id);
    }
    for (const auto& recognizer : recognizersOf(leaving)) {
        GestureRecognizer::of(recognizer).forgetLifted();
    }
    for (const auto& touch : leaving) {
        Touch::of(touch).recognizers.clear();
    }
}

void TouchDispatcher::deliver(ui::TouchPhase phase, const Touches& changed) {
    for (const auto& touch : changed) {
        Touch::of(touch).setPhase(phase);
    }
    const ui::Event happened = event();
    tellRecognizers(phase, changed, happened);
    tellViews(phase, changed, happened);
}

void TouchDispatcher::cancelInViews(const Touches& touches) {
    const Touches concerned = those(touches, [](const auto& touch) {
        return Touch::of(touch).reachesView && Touch::of(touch).knownToView;
    });
    tellViews(ui::TouchPhase::cancelled, concerned, event());
    for (const auto& touch : touches) {
        Touch::of(touch).reachesView = false;
    }
}

TouchDispatcher::Touches TouchDispatcher::known(std::span<const TouchPoint> points) const {
    Touches found;
    for (const TouchPoint& point : points) {
        if (const auto touch = touches_.find(point.id); touch != touches_.end()) {
            addOnce(found, touch->second);
        }
    }
    return found;
}

unsigned long TouchDispatcher::tapCountAt(CGPoint point) const {
    const bool again = Clock::shared().now() - latestTap_.moment <= TapRule::longestPause &&
                       distance(latestTap_.point, point) <= TapRule::allowedDistance;
    return again ? latestTap_.count + 1 : 1;
}

ui::Event TouchDispatcher::event() const {
    Touches all;
    for (const auto& [id, touch] : touches_) {
        all.push_back(touch);
    }
    return Event::with(setOf(all), Clock::shared().now());
}

} // namespace desktop
