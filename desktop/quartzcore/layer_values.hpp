// What a layer looks like, as far as it can change gradually.
#pragma once

#include "bindings/coregraphics/geometry.hpp"
#include "desktop/drawing/colour.hpp"

namespace desktop {

/// The values of a layer that animations change. Points; the anchor point is the middle.
struct LayerValues {
    CGRect bounds;
    CGPoint position;
    CGAffineTransform transform;
    float opacity = 1;
    double cornerRadius = 0;
    Colour backgroundColor{0, 0, 0, 0};

    /// From the layer's own coordinates to its superlayer's.
    [[nodiscard]] CGAffineTransform toSuperlayer() const;
    /// The smallest upright rectangle around the transformed bounds, in the superlayer.
    [[nodiscard]] CGRect frame() const;
};

/// What is shown on the way from one value to another; `progress` is 0 at the first and 1 at the
/// second, and may lie outside of them.
[[nodiscard]] double blended(double from, double to, double progress);
[[nodiscard]] float blended(float from, float to, double progress);
[[nodiscard]] CGPoint blended(CGPoint from, CGPoint to, double progress);
/// Sides do not become negative.
[[nodiscard]] CGRect blended(CGRect from, CGRect to, double progress);
/// Transforms turn, grow and shear on their way; those that flatten blend number by number.
[[nodiscard]] CGAffineTransform blended(CGAffineTransform from, CGAffineTransform to,
                                        double progress);
/// A colour fades in and out in its own hue.
[[nodiscard]] Colour blended(Colour from, Colour to, double progress);

} // namespace desktop
