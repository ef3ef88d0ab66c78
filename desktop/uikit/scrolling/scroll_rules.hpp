// The arithmetic of scrolling along one axis.
#pragma once

namespace desktop {

/// The offsets between which content rests, in points; `high` is not below `low`.
struct ScrollRange {
    double low = 0;
    double high = 0;

    /// The range of content with insets before and after it, in a view of that length.
    static ScrollRange of(double content, double view, double before, double after);
    [[nodiscard]] double nearest(double offset) const;
};

/// Speed left after each millisecond; the platform's two rates.
inline constexpr double normalDeceleration = 0.998;
inline constexpr double fastDeceleration = 0.99;

/// How far content follows a finger that has dragged it `distance` points beyond its range, in a
/// view of that length: ever less, and never as far as the view is long.
[[nodiscard]] double rubberBand(double distance, double length);
/// The finger's distance that gives that overshoot.
[[nodiscard]] double rubberBandInverse(double overshoot, double length);
/// The offset shown for the offset that a finger asks for.
[[nodiscard]] double draggedOffset(double wanted, ScrollRange range, double length, bool bounces);
/// The finger's offset that shows this one: the inverse.
[[nodiscard]] double wantedOffset(double shown, ScrollRange range, double length);

/// The page on which content comes to rest that was let go at `offset`, where a page is `length`
/// long; a fling, in points a second, turns at most one page from `start`, where the drag began.
[[nodiscard]] double pageTarget(double start, double offset, double velocity, double length,
                                ScrollRange range);

/// The offset nearest to this one at which a stretch of content can be seen, in a view of that
/// length of which `before` and `after` are covered; its start, when all of it has no room.
[[nodiscard]] double revealing(double start, double stretch, double offset, double length,
                               double before, double after);

/// Content that moves on by itself. Seconds since it was let go, points, points a second.
class Coast {
public:
    /// Slows down by `rate` (see `normalDeceleration`); beyond the range it springs back, or,
    /// when it does not bounce, stops at the edge.
    static Coast slowing(double offset, double velocity, ScrollRange range, double rate,
                         bool bounces);
    /// Springs to `rest` without swinging.
    static Coast springing(double offset, double velocity, double rest);

    [[nodiscard]] double offset(double seconds) const;
    [[nodiscard]] double duration() const { return springStart_ + springTime_; }
    /// Where it ends.
    [[nodiscard]] double rest() const { return rest_; }

private:
    [[nodiscard]] double slowed(double seconds) const;
    void endInSpring(double seconds, double distance, double velocity);

    double start_ = 0;
    double velocity_ = 0;
    double decay_ = 0;       // of the speed, per second
    double springStart_ = 0; // when slowing down ends
    double springTime_ = 0;
    double springDistance_ = 0; // from rest, when the spring takes over
    double springVelocity_ = 0;
    double rest_ = 0;
};

/// Where a scroll indicator lies on its track: points from the track's start.
struct IndicatorSpan {
    double start;
    double length;
};
/// `visible` points of `content` are seen from `offset` on. Beyond the ends the indicator shrinks.
[[nodiscard]] IndicatorSpan indicatorSpan(double content, double visible, double offset,
                                          double track);

} // namespace desktop
