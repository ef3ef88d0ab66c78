// Where the floating button and the panel are, as the preferences say.
#pragma once

#include "bindings/coregraphics/geometry.hpp"
#include "library/preferences/preferences.hpp"

namespace wentra::toolbox {

/// In points. A stored 0 counts as no value, and so does what is not finite.
struct PanelLayout {
    double panelTop;
    double panelHeight;
    double editorTop; ///< inside the panel
    double editorHeight;
    double ballSide;

    static PanelLayout from(const preferences::Preferences& preferences);

    /// The panel in a window of that size.
    [[nodiscard]] CGRect panel(CGSize screen) const;
    /// The editor in the panel.
    [[nodiscard]] CGRect editor(CGSize screen) const;
};

/// Where the ball's centre is when it appears in a window of that size.
[[nodiscard]] CGPoint ballCentre(CGSize window, double ballWidth);

} // namespace wentra::toolbox
