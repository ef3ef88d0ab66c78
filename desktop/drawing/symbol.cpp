// Drawing symbols in the size and the weight of a text.
#include "desktop/drawing/symbol.hpp"

#include "desktop/drawing/canvas.hpp"
#include "desktop/drawing/symbol_shape.hpp"

#include <algorithm>
#include <cmath>

namespace desktop {
namespace {

/// The room that the phone leaves beside a symbol, for each point of its size.
constexpr double sideBearing = 0.06;

/// How much thicker a symbol's lines are than regular ones, in points.
double emboldening(const SymbolStyle& style) {
    constexpr double regular = 400;
    constexpr double perWeight = 0.00016;
    return std::max(0.0, style.weight - regular) * perWeight * style.pointSize;
}

SymbolStyle usable(SymbolStyle style) {
    style.pointSize = style.pointSize > 0 ? std::min(style.pointSize, SymbolStyle::largestSize)
                                          : SymbolStyle::usualSize;
    return style;
}

Image drawn(const SymbolShape& shape, const SymbolStyle& style, double scale) {
    const double line = emboldening(style);
    const double unit = style.pointSize / SymbolShape::pointSize;
    const double side = sideBearing * style.pointSize + line / 2;
    const auto whole = [scale](double points) { return std::ceil(points * scale) / scale; };
    const Size size{whole(shape.box.width * unit + 2 * side),
                    whole(shape.box.height * unit + 2 * line)};
    Canvas canvas(size, scale);
    cairo_t* const context = canvas.context();
    cairo_translate(context, (size.width - shape.box.width * unit) / 2,
                    (size.height - shape.box.height * unit) / 2);
    cairo_scale(context, unit, unit);
    cairo_translate(context, -shape.box.x, -shape.box.y);
    cairo_set_source_rgba(context, 0, 0, 0, 1);
    shape.paint(context, line / unit);
    return canvas.snapshot();
}

} // namespace

std::optional<Image> symbol(std::string_view name, const SymbolStyle& style, double scale) {
    auto shape = strokeShape(name);
    if (!shape) {
        shape = glyphShape(name);
    }
    return shape ? std::optional(drawn(*shape, usable(style), scale)) : std::nullopt;
}

} // namespace desktop
