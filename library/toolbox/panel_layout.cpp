// Sizes with their defaults.
#include "library/toolbox/panel_layout.hpp"

#include <cmath>

namespace wentra::toolbox {

PanelLayout PanelLayout::from(const preferences::Preferences& preferences) {
    using preferences::keys;
    const auto points = [&preferences](const preferences::Number& key, double standard) {
        const double stored = preferences.number(key);
        return stored == 0 || !std::isfinite(stored) ? standard : stored;
    };
    return {.panelTop = points(keys.panelTop, 60),
            .panelHeight = points(keys.panelHeight, 610),
            .editorTop = points(keys.editorTop, 5),
            .editorHeight = points(keys.editorHeight, 145),
            .ballSide = points(keys.buttonSide, 34)};
}

CGRect PanelLayout::panel(CGSize screen) const {
    return {{0, panelTop}, {screen.width, panelHeight}};
}

CGRect PanelLayout::editor(CGSize screen) const {
    constexpr double left = 12;
    constexpr double sideways = 30; // both sides, the marker button's right one included
    return {{left, editorTop}, {screen.width - sideways, editorHeight}};
}

CGPoint ballCentre(CGSize window, double ballWidth) {
    constexpr double margin = 15;
    constexpr double aboveMiddle = 200;
    return {window.width - ballWidth * 0.5 - margin, window.height * 0.5 - aboveMiddle};
}

} // namespace wentra::toolbox
