// Cubic curves and damped springs.
#include "desktop/quartzcore/animation/timing_curve.hpp"

#include <algorithm>
#include <cmath>

namespace desktop {
namespace {

double bezier(double first, double second, double t) {
    const double rest = 1 - t;
    return 3 * rest * rest * t * first + 3 * rest * t * t * second + t * t * t;
}

} // namespace

TimingCurve TimingCurve::spring(double damping, double velocity) {
    constexpr double softest = 0.01;
    constexpr double fastest = 1'000;
    TimingCurve curve = linear();
    curve.damping_ = std::isnan(damping) ? 1 : std::clamp(damping, softest, 1.0);
    curve.velocity_ = std::isnan(velocity) ? 0 : std::clamp(velocity, -fastest, fastest);
    return curve;
}

double TimingCurve::progress(double fraction) const {
    if (!(fraction > 0)) {
        return 0;
    }
    if (fraction >= 1) {
        return 1;
    }
    return damping_ > 0 ? springProgress(fraction) : bezierProgress(fraction);
}

double TimingCurve::bezierProgress(double fraction) const {
    if (x1_ == y1_ && x2_ == y2_) {
        return fraction; // a straight line, exactly
    }
    // x grows with t: halving the interval finds t, precisely enough for any screen.
    double low = 0;
    double high = 1;
    constexpr int halvings = 24;
    for (int step = 0; step < halvings; ++step) {
        const double middle = (low + high) / 2;
        (bezier(x1_, x2_, middle) < fraction ? low : high) = middle;
    }
    return bezier(y1_, y2_, (low + high) / 2);
}

double TimingCurve::springProgress(double fraction) const {
    // The frequency at which the swing has died down to a thousandth when the time is over.
    if (damping_ == 1) {
        constexpr double frequency = 9.23; // (1 + f) exp(-f) = 0.001
        return 1 - std::exp(-frequency * fraction) * (1 + (frequency - velocity_) * fraction);
    }
    const double decay = std::log(1'000.0);
    const double swing = decay / damping_ * std::sqrt(1 - damping_ * damping_);
    return 1 -
           std::exp(-decay * fraction) * (std::cos(swing * fraction) +
                                          (decay - velocity_) / swing * std::sin(swing * fraction));
}

} // namespace desktop
