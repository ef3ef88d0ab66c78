// Where the titles of the edit menu stand, page by page.
#pragma once

#include "desktop/drawing/geometry.hpp"

#include <optional>
#include <vector>

namespace desktop {

/// One thing on the bar that can be tapped.
struct CalloutPart {
    enum class Role { item, back, forward };
    Role role = Role::item;
    /// Which title, for an item.
    std::size_t item = 0;
    double x = 0;
    double width = 0;
};

using CalloutPage = std::vector<CalloutPart>;

/// Divides titles of these widths (points, without margins) into as few pages as fit a bar of that
/// width, in order, with arrows to the pages before and after. A title that is too wide is cut off.
[[nodiscard]] std::vector<CalloutPage> calloutPages(const std::vector<double>& titles,
                                                    double widest);

/// Width of a page: where its last part ends.
[[nodiscard]] double widthOf(const CalloutPage& page);

/// The bar, with its arrow, beside a target: above it, or below when there is no room.
struct CalloutPlace {
    Rectangle box;
    bool isAbove = true;
    /// Where the arrow's tip is, from the bar's left.
    double tip = 0;
};
[[nodiscard]] CalloutPlace placeCallout(double width, const Rectangle& target,
                                        const Rectangle& screen);

/// Points, as on running phones.
inline constexpr double calloutBarHeight = 36;
inline constexpr double calloutArrowHeight = 9;
inline constexpr double calloutMargin = 10;

} // namespace desktop
