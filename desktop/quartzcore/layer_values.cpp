// Geometry of a layer's values, and what lies between two of them.
#include "desktop/quartzcore/layer_values.hpp"

#include "desktop/coregraphics/affine.hpp"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <optional>

namespace desktop {
namespace {

/// A transform as a turn, after a shear, after a scaling.
struct Parts {
    double angle;
    double shear;
    CGSize scale;
    CGPoint translation;
};

/// Nothing for a transform that flattens or that is not finite.
std::optional<Parts> parts(const CGAffineTransform& t) {
    const double width = std::hypot(t.a, t.b);
    const double determinant = t.a * t.d - t.b * t.c;
    constexpr double flat = 1e-9;
    if (!(width > flat) || !(std::abs(determinant) > flat) || !std::isfinite(determinant)) {
        return std::nullopt;
    }
    const double height = determinant / width;
    return Parts{std::atan2(t.b, t.a),
                 (t.a * t.c + t.b * t.d) / (width * height),
                 {width, height},
                 {t.tx, t.ty}};
}

CGAffineTransform assembled(const Parts& p) {
    const double cosine = std::cos(p.angle);
    const double sine = std::sin(p.angle);
    return {p.scale.width * cosine,
            p.scale.width * sine,
            p.scale.height * (p.shear * cosine - sine),
            p.scale.height * (p.shear * sine + cosine),
            p.translation.x,
            p.translation.y};
}

/// The turn from one angle to another, at most half a circle.
double turn(double from, double to) { return std::remainder(to - from, 2 * std::numbers::pi); }

} // namespace

CGAffineTransform LayerValues::toSuperlayer() const {
    const CGPoint middle = centre(bounds);
    const CGAffineTransform toMiddle{1, 0, 0, 1, -middle.x, -middle.y};
    const CGAffineTransform toPosition{1, 0, 0, 1, position.x, position.y};
    return concatenated(concatenated(toMiddle, transform), toPosition);
}

CGRect LayerValues::frame() const {
    if (transform == CGAffineTransform()) {
        // Without a round trip through the middle, a frame reads back as it was set.
        return {{position.x - bounds.size.width / 2, position.y - bounds.size.height / 2},
                bounds.size};
    }
    return apply(toSuperlayer(), bounds);
}

double blended(double from, double to, double progress) { return from + (to - from) * progress; }

float blended(float from, float to, double progress) {
    return static_cast<float>(std::clamp(
        blended(static_cast<double>(from), static_cast<double>(to), progress), 0.0, 1.0));
}

CGPoint blended(CGPoint from, CGPoint to, double progress) {
    return {blended(from.x, to.x, progress), blended(from.y, to.y, progress)};
}

CGRect blended(CGRect from, CGRect to, double progress) {
    return {blended(from.origin, to.origin, progress),
            {std::max(0.0, blended(from.size.width, to.size.width, progress)),
             std::max(0.0, blended(from.size.height, to.size.height, progress))}};
}

CGAffineTransform blended(CGAffineTransform from, CGAffineTransform to, double progress) {
    const auto first = parts(from);
    const auto last = parts(to);
    if (!first || !last) {
        return {blended(from.a, to.a, progress),   blended(from.b, to.b, progress),
                blended(from.c, to.c, progress),   blended(from.d, to.d, progress),
                blended(from.tx, to.tx, progress), blended(from.ty, to.ty, progress)};
    }
    return assembled({first->angle + turn(first->angle, last->angle) * progress,
                      blended(first->shear, last->shear, progress),
                      {blended(first->scale.width, last->scale.width, progress),
                       blended(first->scale.height, last->scale.height, progress)},
                      blended(first->translation, last->translation, progress)});
}

Colour blended(Colour from, Colour to, double progress) {
    const double alpha = blended(from.alpha, to.alpha, progress);
    if (!(alpha > 0)) {
        return {0, 0, 0, 0};
    }
    const auto channel = [&](double one, double other) {
        return blended(one * from.alpha, other * to.alpha, progress) / alpha;
    };
    return {channel(from.red, to.red), channel(from.green, to.green), channel(from.blue, to.blue),
            alpha};
}

} // namespace desktop
