// Bounds of boxes, and splitting a place into whole pixels and the rest.
#include "desktop/drawing/display/placed_box.hpp"

#include <algorithm>
#include <cmath>

namespace desktop {
namespace {

int wholePixels(double distance) {
    return std::isnan(distance) ? 0 : static_cast<int>(nearestEdge(distance));
}

} // namespace

Rectangle PlacedBox::bounds() const {
    const auto across = [this](double x, double y) { return place.a * x + place.c * y + place.tx; };
    const auto down = [this](double x, double y) { return place.b * x + place.d * y + place.ty; };
    const double right = box.x + box.width;
    const double bottom = box.y + box.height;
    const auto [left, farRight] = std::minmax(
        {across(box.x, box.y), across(right, box.y), across(box.x, bottom), across(right, bottom)});
    const auto [top, farBottom] = std::minmax(
        {down(box.x, box.y), down(right, box.y), down(box.x, bottom), down(right, bottom)});
    return {left, top, farRight - left, farBottom - top};
}

double PlacedBox::pixelsPerPoint() const {
    return std::sqrt(std::abs(place.a * place.d - place.b * place.c));
}

PlacedBox PlacedBox::onPixels() const {
    const Rectangle area = bounds();
    if (!isUpright() || !(area.width > 0 && area.height > 0)) {
        return *this;
    }
    const double left = nearestEdge(area.x);
    const double top = nearestEdge(area.y);
    return {{},
            {left, top, std::max(1.0, nearestEdge(area.x + area.width) - left),
             std::max(1.0, nearestEdge(area.y + area.height) - top)},
            cornerRadius * pixelsPerPoint()};
}

ContentPlace::ContentPlace(const PlacedBox& shape) : inPicture(shape.place) {
    const auto& [place, box, radius] = shape;
    const Point turned{place.a * box.x + place.c * box.y, place.b * box.x + place.d * box.y};
    const Point origin{turned.x + place.tx, turned.y + place.ty};
    if (shape.isUpright()) {
        right = wholePixels(origin.x);
        down = wholePixels(origin.y);
        inPicture.tx = -turned.x;
        inPicture.ty = -turned.y;
    } else {
        right = wholePixels(std::floor(origin.x));
        down = wholePixels(std::floor(origin.y));
        inPicture.tx -= right;
        inPicture.ty -= down;
    }
    bounds = PlacedBox{inPicture, box, 0}.bounds();
}

PixelRectangle ContentPlace::pixels(const PixelRectangle& limits) const {
    return pixelsAround(bounds, limits.moved(-right, -down)).moved(right, down);
}

} // namespace desktop
