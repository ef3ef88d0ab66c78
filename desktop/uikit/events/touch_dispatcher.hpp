// Carries fingers on the screen to the recognizers and views under them.
#pragma once

#include "bindings/uikit/event.hpp"
#include "desktop/uikit/events/touch.hpp"

#include <cstdint>
#include <map>
#include <span>

namespace desktop {

/// Where a finger is, in points of the screen; the id is the caller's.
struct TouchPoint {
    std::int64_t id;
    CGPoint point;
};

/// A point of the screen as one of the window.
[[nodiscard]] CGPoint intoWindow(ui::Window window, CGPoint screenPoint);

/// All fingers on the screen. Each finger belongs, until it leaves, to the view that was under it
/// when it came down; to none while the application is not in front. What an application does
/// meanwhile, such as removing that view, is survived. Main thread.
class TouchDispatcher {
public:
    using Touches = std::vector<objc::Strong<ui::Touch>>;

    static TouchDispatcher& shared();
    /// The view that a finger on that point of the screen would touch; nil for none.
    [[nodiscard]] static ui::View viewAt(CGPoint screenPoint);

    [[nodiscard]] bool isDown(std::int64_t id) const { return touches_.contains(id); }

    /// Fingers come down; those that are down already are ignored, as are unknown ones below.
    void begin(std::span<const TouchPoint> points);
    void move(std::span<const TouchPoint> points);
    /// Notes where fingers are, and tells nobody yet: for those that leave at another place.
    void place(std::span<const TouchPoint> points);
    /// Fingers leave, at their present places.
    void end(std::span<const TouchPoint> points);
    /// The system takes the fingers away, as when a call comes in.
    void cancel(std::span<const TouchPoint> points);
    /// All of them; those that caused it are unknown from then on.
    void cancelAll();

    /// The views of these touches are told that they are none of theirs any more.
    void cancelInViews(const Touches& touches);

private:
    TouchDispatcher() = default;

    [[nodiscard]] Touches known(std::span<const TouchPoint> points) const;
    [[nodiscard]] unsigned long tapCountAt(CGPoint point) const;
    void leave(std::span<const TouchPoint> points, ui::TouchPhase phase);
    void deliver(ui::TouchPhase phase, const Touches& changed);
    [[nodiscard]] ui::Event event() const;

    struct LatestTap {
        double moment = 0;
        CGPoint point;
        unsigned long count = 0;
    };
    std::map<std::int64_t, objc::Strong<ui::Touch>> touches_;
    LatestTap latestTap_;
};

} // namespace desktop
