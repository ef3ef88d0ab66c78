// How far an animation has come at a given part of its time.
#pragma once

namespace desktop {

/// A curve of progress over time. Plain values.
class TimingCurve {
public:
    /// The curve whose control points are (0, 0), (x1, y1), (x2, y2) and (1, 1); both x lie between
    /// 0 and 1.
    constexpr TimingCurve(double x1, double y1, double x2, double y2)
        : x1_(x1), y1_(y1), x2_(x2), y2_(y2) {}

    // The platform's named curves, with its documented control points.
    static constexpr TimingCurve linear() { return {0, 0, 1, 1}; }
    static constexpr TimingCurve easeIn() { return {0.42, 0, 1, 1}; }
    static constexpr TimingCurve easeOut() { return {0, 0, 0.58, 1}; }
    static constexpr TimingCurve easeInOut() { return {0.42, 0, 0.58, 1}; }
    /// A spring that has come to rest at the end. `damping` is the ratio to critical damping: 1 and
    /// more do not swing. `velocity` is the speed at the start, in whole distances for the whole
    /// time. Other numbers, NaN included, are brought into a useful range.
    static TimingCurve spring(double damping, double velocity);

    /// 0 at the start and 1 at the end; a spring may go beyond 1 on its way. `fraction` is the part
    /// of the time that has passed, and counts as 0 or 1 outside of that range.
    [[nodiscard]] double progress(double fraction) const;

private:
    [[nodiscard]] double springProgress(double fraction) const;
    [[nodiscard]] double bezierProgress(double fraction) const;

    double x1_;
    double y1_;
    double x2_;
    double y2_;
    double damping_ = 0; // 0: no spring
    double velocity_ = 0;
};

} // namespace desktop
