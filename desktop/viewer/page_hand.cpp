// Handing the page's fingers to the touch dispatcher.
#include "desktop/viewer/page_hand.hpp"

#include "desktop/uikit/events/touch_dispatcher.hpp"
#include "desktop/uikit/uikit.hpp"

namespace desktop::viewer {
namespace {

/// Numbers that no script uses for its fingers.
constexpr std::int64_t firstId = 1'000'000'000;

} // namespace

void PageHand::touch(const Fingers& fingers) {
    std::vector<TouchPoint> points;
    for (const Finger& finger : fingers.fingers) {
        points.push_back({firstId + finger.id, {finger.x, finger.y}});
    }
    TouchDispatcher& touches = TouchDispatcher::shared();
    uikit::layoutWindows();
    if (fingers.phase == FingerPhase::began) {
        for (const TouchPoint& point : points) {
            down_.insert(point.id);
        }
        touches.begin(points);
        return;
    }
    if (fingers.phase == FingerPhase::moved) {
        touches.move(points);
        return;
    }
    touches.place(points);
    for (const TouchPoint& point : points) {
        down_.erase(point.id);
    }
    if (fingers.phase == FingerPhase::ended) {
        touches.end(points);
    } else {
        touches.cancel(points);
    }
}

void PageHand::leave() {
    std::vector<TouchPoint> points;
    for (const std::int64_t id : std::exchange(down_, {})) {
        points.push_back({id, {}});
    }
    TouchDispatcher::shared().cancel(points);
}

} // namespace desktop::viewer
