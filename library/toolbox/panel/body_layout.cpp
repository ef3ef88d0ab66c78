// Sizes with their defaults, and the grid of buttons.
#include "library/toolbox/panel/body_layout.hpp"

#include "library/toolbox/stored_size.hpp"

#include <cmath>

namespace wentra::toolbox {

BodyLayout BodyLayout::from(const preferences::Preferences& preferences) {
    using preferences::keys;
    const auto size = [&preferences](const preferences::Number& key, double standard) {
        return storedSize(preferences, key, standard);
    };
    return {.top = size(keys.touchViewTop, 150),
            .height = size(keys.touchViewHeight, 1050),
            .gridTop = size(keys.gridTop, 0),
            .gridHeight = size(keys.gridHeight, 320),
            .gridShade = size(keys.gridFooterTransparency, 0.2),
            .totalsTop = size(keys.totalCountPosition, 410),
            .selectionsTop = size(keys.selectedCountPosition, 436),
            .buttonShade = size(keys.toolboxTransparency, 0.75),
            .rowTops = {size(keys.upperRowPosition, 329), size(keys.lowerRowPosition, 368),
                        size(keys.thirdRowPosition, 407)}};
}

CGRect BodyLayout::body(double screenWidth) const { return {{0, top}, {screenWidth, height}}; }

CGRect BodyLayout::grid(double screenWidth) const {
    constexpr double margin = 12;
    return {{margin, gridTop}, {screenWidth - 2 * margin, gridHeight}};
}

CGRect BodyLayout::button(double bodyWidth, ButtonPlace place) const {
    constexpr double margin = 11.25;
    constexpr double gap = 10;
    constexpr double buttonHeight = 30;
    const double width = (bodyWidth - 2 * margin - 3 * gap) * 0.25;
    return {{margin + static_cast<double>(place.column) * (width + gap), rowTops[place.row]},
            {width, buttonHeight}};
}

} // namespace wentra::toolbox
