// What a symbol is drawn from: a glyph of the icon font, or strokes of our own.
#pragma once

#include "desktop/drawing/geometry.hpp"

#include <cairo.h>
#include <functional>
#include <optional>
#include <string_view>

namespace desktop {

/// A symbol on the icon font's grid, a square of 28 units, y down.
struct SymbolShape {
    /// The size of the text that the grid's units are points for.
    static constexpr double pointSize = 20;

    /// What the regular weight covers.
    Rectangle box;
    /// Draws it in black; `bolder` is how much thicker its lines are than regular ones, in units.
    std::function<void(cairo_t* context, double bolder)> paint;
};

/// The glyph of that name, or of the nearest one that the font has.
[[nodiscard]] std::optional<SymbolShape> glyphShape(std::string_view name);
/// The strokes of symbols that no glyph comes near to.
[[nodiscard]] std::optional<SymbolShape> strokeShape(std::string_view name);

} // namespace desktop
