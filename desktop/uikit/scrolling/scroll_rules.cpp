// Rubber bands, deceleration, springs, pages and indicators.
#include "desktop/uikit/scrolling/scroll_rules.hpp"

#include <algorithm>
#include <cmath>

namespace desktop {
namespace {

/// How stiff the rubber band is, as on the phone.
constexpr double stiffness = 0.55;
/// Slower than this, in points a second, is rest.
constexpr double slowest = 4;
/// Closer than this, in points, is there.
constexpr double nearEnough = 0.25;
/// Of the spring that brings content back, a second.
constexpr double frequency = 11;

} // namespace

ScrollRange ScrollRange::of(double content, double view, double before, double after) {
    const double low = -before;
    return {low, std::max(low, content + after - view)};
}

double ScrollRange::nearest(double offset) const {
    return std::isnan(offset) ? low : std::clamp(offset, low, high);
}

double rubberBand(double distance, double length) {
    if (length <= 0) {
        return 0;
    }
    const double magnitude = std::abs(distance);
    return std::copysign((1 - 1 / (magnitude * stiffness / length + 1)) * length, distance);
}

double rubberBandInverse(double overshoot, double length) {
    constexpr double nearlyAll = 0.999;
    const double part = length > 0 ? std::min(std::abs(overshoot) / length, nearlyAll) : 0;
    return std::copysign((1 / (1 - part) - 1) * length / stiffness, overshoot);
}

double draggedOffset(double wanted, ScrollRange range, double length, bool bounces) {
    const double inside = range.nearest(wanted);
    return bounces && wanted != inside ? inside + rubberBand(wanted - inside, length) : inside;
}

double wantedOffset(double shown, ScrollRange range, double length) {
    const double inside = range.nearest(shown);
    return shown == inside ? shown : inside + rubberBandInverse(shown - inside, length);
}

double pageTarget(double start, double offset, double velocity, double length, ScrollRange range) {
    if (length <= 0) {
        return range.nearest(offset);
    }
    constexpr double fling = 300; // points a second
    const double from = std::round(start / length);
    double page = std::round(offset / length);
    if (std::abs(velocity) > fling) { // on to the next edge that way, wherever the drag went
        page = velocity > 0 ? std::ceil(offset / length) : std::floor(offset / length);
    }
    return range.nearest(std::clamp(page, from - 1, from + 1) * length);
}

double revealing(double start, double stretch, double offset, double length, double before,
                 double after) {
    const double atStart = start - before;
    const double atEnd = start + stretch - (length - after);
    return atEnd >= atStart ? atStart : std::clamp(offset, atEnd, atStart);
}

Coast Coast::springing(double offset, double velocity, double rest) {
    Coast coast;
    coast.rest_ = rest;
    coast.endInSpring(0, offset - rest, velocity);
    return coast;
}

Coast Coast::slowing(double offset, double velocity, ScrollRange range, double rate, bool bounces) {
    const double edge = range.nearest(offset);
    if (edge != offset) {
        return springing(offset, velocity, edge);
    }
    constexpr double millisecondsPerSecond = 1'000;
    constexpr double mostRate = 0.9999;
    constexpr double leastRate = 0.5;
    Coast coast;
    coast.start_ = offset;
    coast.velocity_ = velocity;
    coast.decay_ = -millisecondsPerSecond * std::log(std::clamp(rate, leastRate, mostRate));
    const double speed = std::abs(velocity);
    coast.springStart_ = speed > slowest ? std::log(speed / slowest) / coast.decay_ : 0;
    coast.rest_ = coast.slowed(coast.springStart_);
    if (const double end = range.nearest(coast.rest_); end != coast.rest_) {
        const double left = velocity - coast.decay_ * (end - offset); // the speed at the edge
        coast.rest_ = end;
        coast.springStart_ = std::log(velocity / left) / coast.decay_;
        if (bounces) {
            coast.endInSpring(coast.springStart_, 0, left);
        }
    }
    return coast;
}

void Coast::endInSpring(double seconds, double distance, double velocity) {
    springStart_ = seconds;
    springDistance_ = distance;
    springVelocity_ = velocity;
    constexpr double step = 1.0 / 60;
    constexpr double longest = 5;
    // Beyond its turning point the spring only comes closer.
    for (springTime_ = step; springTime_ < longest; springTime_ += step) {
        const double growth = springVelocity_ + frequency * springDistance_;
        const double reach = (std::abs(springDistance_) + std::abs(growth) * springTime_) *
                             std::exp(-frequency * springTime_);
        if (reach < nearEnough && frequency * springTime_ > 1) {
            return;
        }
    }
}

double Coast::slowed(double seconds) const {
    return decay_ > 0 ? start_ + velocity_ / decay_ * (1 - std::exp(-decay_ * seconds)) : start_;
}

double Coast::offset(double seconds) const {
    if (seconds >= duration()) {
        return rest_;
    }
    if (seconds < springStart_) {
        return slowed(seconds);
    }
    const double passed = seconds - springStart_;
    const double growth = springVelocity_ + frequency * springDistance_;
    return rest_ + (springDistance_ + growth * passed) * std::exp(-frequency * passed);
}

IndicatorSpan indicatorSpan(double content, double visible, double offset, double track) {
    constexpr double shortest = 36;
    constexpr double shortestBeyond = 8;
    if (!(content > 0) || !(track > 0)) {
        return {0, 0};
    }
    const double most = std::max(0.0, content - visible);
    const double beyond = std::max({0.0, -offset, offset - most});
    const double whole = std::clamp(track * visible / content, std::min(shortest, track), track);
    const double length = std::clamp(whole - beyond, std::min(shortestBeyond, track), track);
    const double part = most > 0 ? std::clamp(offset / most, 0.0, 1.0) : (offset > 0 ? 1.0 : 0.0);
    return {part * (track - length), length};
}

} // namespace desktop
