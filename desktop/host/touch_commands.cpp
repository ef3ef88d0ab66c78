// Commands that put fingers on the screen.
#include "desktop/host/arguments.hpp"
#include "desktop/host/commands.hpp"
#include "desktop/host/view_node.hpp"

#include "bindings/uikit/window.hpp"
#include "desktop/coregraphics/affine.hpp"
#include "desktop/runtime/run_loop.hpp"
#include "desktop/uikit/events/touch_dispatcher.hpp"
#include "desktop/uikit/scrolling/wheel.hpp"
#include "desktop/uikit/uikit.hpp"

#include <algorithm>
#include <cmath>

namespace desktop::host {
namespace {

/// Fingers move once in each frame of the screen, in seconds.
constexpr double frame = 1.0 / 60;

/// Where to touch, and how much room there is around it for several fingers.
struct Spot {
    CGPoint point;
    double radius;
};

Spot spot(Session& session, const Json& request) {
    constexpr double handsBreadth = 50;
    const Json* on = argument(request, "on");
    if (on == nullptr) {
        return {pointArgument(request, "at"), handsBreadth};
    }
    uikit::layoutWindows();
    const auto view = session.values.toKind<ui::View>(*on);
    if (!view.window()) {
        throw RequestError("the view is in no window");
    }
    const CGRect rect = rectInWindow(view);
    const CGPoint window = view.window().frame().origin;
    const CGPoint middle = centre(rect);
    constexpr double wellInside = 0.4;
    return {{window.x + middle.x, window.y + middle.y},
            std::min(handsBreadth, wellInside * std::min(rect.size.width, rect.size.height))};
}

/// Some fingers of the hand that is moved by a command; their numbers are those that are free.
class Hand {
public:
    explicit Hand(std::size_t fingers) {
        for (std::int64_t id = 0; points_.size() < fingers; ++id) {
            if (!touches_.isDown(id)) {
                points_.push_back({id, {}});
            }
        }
    }

    void down(CGPoint point) {
        place(point);
        down();
    }
    void moveTo(CGPoint point) {
        place(point);
        move();
    }
    void lift() {
        touches_.end(points_);
        run_loop::runUntilIdle();
    }
    /// Two fingers side by side, that far from the middle.
    void spread(Spot spot) {
        points_.at(0).point = {spot.point.x - spot.radius, spot.point.y};
        points_.at(1).point = {spot.point.x + spot.radius, spot.point.y};
    }
    void down() {
        touches_.begin(points_);
        run_loop::runUntilIdle();
    }
    void move() {
        run_loop::advance(frame);
        touches_.move(points_);
        run_loop::runUntilIdle();
    }

private:
    void place(CGPoint point) {
        for (TouchPoint& finger : points_) {
            finger.point = point;
        }
    }

    TouchDispatcher& touches_ = TouchDispatcher::shared();
    std::vector<TouchPoint> points_;
};

Hand handArgument(const Json& request) {
    constexpr std::size_t mostFingers = 10;
    return Hand(countArgument(request, "touches", 1, mostFingers));
}

double scaleArgument(const Json& request) {
    constexpr double largest = 1'000;
    const Json& value = anyArgument(request, "scale");
    const double scale = value.is_number() ? value.get<double>() : 0;
    if (!(scale > 0 && scale <= largest)) {
        throw RequestError("\"scale\" must be a number above 0, up to 1000");
    }
    return scale;
}

/// The way from one point to the next, in steps of a finger's usual size, but not too many.
void slideTo(Hand& hand, CGPoint from, CGPoint to) {
    constexpr double step = 10;
    constexpr double mostSteps = 100;
    const double way = distance(from, to);
    const int steps = static_cast<int>(std::clamp(std::ceil(way / step), 1.0, mostSteps));
    for (int i = 1; i < steps; ++i) {
        const double part = static_cast<double>(i) / steps;
        hand.moveTo({from.x + (to.x - from.x) * part, from.y + (to.y - from.y) * part});
    }
    hand.moveTo(to);
}

/// [[id,x,y],…], each finger once.
std::vector<TouchPoint> fingersArgument(const Json& request, bool comeDown) {
    std::vector<TouchPoint> fingers;
    for (const Json& entry : listArgument(request, "points")) {
        if (!entry.is_array() || entry.size() != 3 || !entry[0].is_number_integer()) {
            throw RequestError("a finger is [id,x,y], got " + written(entry));
        }
        const auto id = entry[0].get<std::int64_t>();
        const bool twice = std::ranges::find(fingers, id, &TouchPoint::id) != fingers.end();
        if (twice || TouchDispatcher::shared().isDown(id) == comeDown) {
            throw RequestError("finger " + std::to_string(id) +
                               (twice || comeDown ? " is down already" : " is not down"));
        }
        fingers.push_back({id, toPoint(Json{entry[1], entry[2]})});
    }
    return fingers;
}

} // namespace

Json tap(Session& session, const Json& request) {
    constexpr std::size_t mostTaps = 100;
    const std::size_t taps = countArgument(request, "taps", 1, mostTaps);
    Hand hand = handArgument(request);
    const Spot at = spot(session, request);
    for (std::size_t made = 0; made < taps; ++made) {
        hand.down(at.point);
        hand.lift();
    }
    return nullptr;
}

Json press(Session& session, const Json& request) {
    constexpr double longEnough = 0.5;
    const double seconds = secondsArgument(request, "seconds", longEnough);
    Hand hand = handArgument(request);
    hand.down(spot(session, request).point);
    run_loop::advance(seconds);
    hand.lift();
    return nullptr;
}

Json slide(Session&, const Json& request) {
    std::vector<CGPoint> path;
    for (const Json& point : listArgument(request, "path")) {
        path.push_back(toPoint(point));
    }
    const double hold = secondsArgument(request, "hold", 0);
    const bool stays = flagArgument(request, "stay");
    Hand hand = handArgument(request);
    hand.down(path.front());
    run_loop::advance(hold);
    for (std::size_t next = 1; next < path.size(); ++next) {
        slideTo(hand, path[next - 1], path[next]);
    }
    if (!stays) {
        hand.lift();
    }
    return nullptr;
}

Json pinch(Session& session, const Json& request) {
    constexpr std::size_t usualSteps = 10;
    constexpr std::size_t mostSteps = 1'000;
    const double scale = scaleArgument(request);
    const std::size_t steps = countArgument(request, "steps", usualSteps, mostSteps);
    const Spot at = spot(session, request);
    Hand hand(2);
    hand.spread(at);
    hand.down();
    for (std::size_t step = 1; step <= steps; ++step) {
        const double part = static_cast<double>(step) / static_cast<double>(steps);
        hand.spread({at.point, at.radius * (1 + (scale - 1) * part)});
        hand.move();
    }
    hand.lift();
    return nullptr;
}

Json touch(Session&, const Json& request) {
    const std::string& phase = stringArgument(request, "phase");
    if (phase != "began" && phase != "moved" && phase != "ended" && phase != "cancelled") {
        throw RequestError("\"phase\" must be began, moved, ended or cancelled");
    }
    const auto fingers = fingersArgument(request, phase == "began");
    uikit::layoutWindows();
    TouchDispatcher& touches = TouchDispatcher::shared();
    if (phase == "began") {
        touches.begin(fingers);
        return nullptr;
    }
    if (phase == "moved") {
        touches.move(fingers);
        return nullptr;
    }
    touches.place(fingers);
    if (phase == "ended") {
        touches.end(fingers);
    } else {
        touches.cancel(fingers);
    }
    return nullptr;
}

Json wheel(Session&, const Json& request) {
    const CGPoint at = pointArgument(request, "at");
    const CGPoint by = pointArgument(request, "by");
    uikit::layoutWindows();
    return turnWheel(at, by);
}

} // namespace desktop::host
