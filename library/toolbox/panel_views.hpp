// The views of the floating toolbox, as they are made.
#pragma once

#include "bindings/uikit/button.hpp"
#include "bindings/uikit/text_view.hpp"
#include "library/toolbox/view_model.hpp"

namespace wentra::toolbox {

// Sizes are in points. Gestures go to `owner`, which is not retained.

/// The round floating button, hidden, with the user's picture if there is one. A tap sends
/// `showTextPanel`, a pan `moveFloatingView:`.
ui::View makeBall(double side, ViewModel owner);

/// The panel, hidden, in the middle of a screen of that size, with the user's background picture if
/// there is one. A pan sends `moveContentView:`.
ui::View makePanel(double height, CGSize screen, ui::Color background, ViewModel owner);

/// The editable text view for the copied text, whose delegate is the owner.
ui::TextView makeEditor(CGRect frame, ViewModel owner);

/// The small button that marks the editor as editable; it does nothing.
ui::Button makeMarker();

/// The dimming behind the panel, hidden, larger than any screen. A tap sends `hideTextPanel`.
ui::View makeDimming(CGSize screen, ViewModel owner);

} // namespace wentra::toolbox
