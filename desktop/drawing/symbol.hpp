// The system's symbols: icons drawn in one colour, known by the phone's names.
#pragma once

#include "desktop/drawing/image.hpp"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace desktop {

/// How a symbol is drawn. Sizes that are not positive count as the usual one, larger ones than
/// `largestSize` as that.
struct SymbolStyle {
    static constexpr double usualSize = 17;
    static constexpr double largestSize = 500;

    /// The size in points of the text that the symbol goes with.
    double pointSize = usualSize;
    /// As a font's; symbols are never thinner than 400 (regular).
    int weight = 400;
};

/// The symbol in black on clear ground, in pixels of that scale; nothing for a name that is not
/// known. Of those that the icon set lacks some are drawn by hand, and others are the nearest one
/// that it has. Main thread.
[[nodiscard]] std::optional<Image> symbol(std::string_view name, const SymbolStyle& style,
                                          double scale);

/// The names under which the icon set may have the phone's symbol, the best one first.
[[nodiscard]] std::vector<std::string> glyphNames(std::string_view name);

} // namespace desktop
