// Where the things in the panel's body are, as the preferences say.
#pragma once

#include "bindings/coregraphics/geometry.hpp"
#include "library/preferences/preferences.hpp"

#include <array>

namespace wentra::toolbox {

/// The place of a button: row and column, counted from 0.
struct ButtonPlace {
    std::size_t row;
    std::size_t column;
};

/// In points; shades are alphas of backgrounds.
struct BodyLayout {
    double top;    ///< of the body, inside the panel
    double height; ///< of the body
    double gridTop;
    double gridHeight;
    double gridShade;
    double totalsTop;     ///< of the labels that count the whole text
    double selectionsTop; ///< of the labels that count what is picked
    double buttonShade;
    std::array<double, 3> rowTops;

    static BodyLayout from(const preferences::Preferences& preferences);

    [[nodiscard]] CGRect body(double screenWidth) const;
    [[nodiscard]] CGRect grid(double screenWidth) const;
    /// Four buttons fit into a row.
    [[nodiscard]] CGRect button(double bodyWidth, ButtonPlace place) const;
};

} // namespace wentra::toolbox
