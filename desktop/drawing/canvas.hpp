// Draws rectangles, images and groups in points on a surface of device pixels.
#pragma once

#include "desktop/drawing/colour.hpp"
#include "desktop/drawing/geometry.hpp"
#include "desktop/drawing/image.hpp"

#include <cairo.h>

#include <memory>

namespace desktop {

/// Maps (x, y) to (a x + c y + tx, b x + d y + ty), as the phone's affine transforms do.
struct AffineTransform {
    double a = 1;
    double b = 0;
    double c = 0;
    double d = 1;
    double tx = 0;
    double ty = 0;
    bool operator==(const AffineTransform&) const = default;
};

/// One thread at a time. Rectangles with a negative or NaN measure draw nothing, edges far away are
/// brought within a million points, and a corner radius between zero and half of the shorter side.
class Canvas {
public:
    /// A clear surface of size times scale pixels, rounded up, each side between 1 and
    /// `Image::largestSide`; (390 x 844) at 3 has 1170 x 2532 pixels.
    Canvas(Size size, double scale);
    /// A clear surface of that many pixels, likewise limited, on which a point has `scale` of them.
    Canvas(int width, int height, double scale);
    /// Draws with a context made elsewhere, of which it shares the ownership.
    explicit Canvas(cairo_t* context);

    /// For what the canvas has no word for: text, paths, gradients. Owned by the canvas.
    cairo_t* context() const { return context_.get(); }

    /// Keeps transform and clip until the matching `restore`.
    void save();
    void restore();
    /// A transform that cannot be inverted or is not finite is ignored: false then.
    bool translate(double x, double y);
    bool concatenate(const AffineTransform& transform);
    void clip(const Rectangle& area, double cornerRadius = 0);

    void fill(const Rectangle& area, const Colour& colour, double cornerRadius = 0);
    /// The line lies inside of the rectangle, as a layer's border does.
    void stroke(const Rectangle& area, const Colour& colour, double lineWidth,
                double cornerRadius = 0);
    /// Stretches the image over the rectangle.
    void draw(const Image& image, const Rectangle& area);
    /// Fills the image's shape, stretched over the rectangle, with the colour.
    void fillShape(const Image& image, const Rectangle& area, const Colour& colour);
    /// The blurred shadow of a filled rectangle, moved by `offset`; `blurRadius` is the standard
    /// deviation of the blur.
    void drawShadow(const Rectangle& area, const Colour& colour, Size offset, double blurRadius,
                    double cornerRadius = 0);

    /// The source of what is drawn by the context's own words.
    void setColour(const Colour& colour);

    /// What is drawn until the matching `endGroup` is composed as one, with that opacity.
    void beginGroup();
    void endGroup(double alpha);

    /// A copy of the canvas's pixels; an empty image for a context that draws on no image.
    Image snapshot() const;

private:
    std::shared_ptr<cairo_t> context_;
    double scale_ = 1;
};

} // namespace desktop
