// Where presented controllers lie on a phone's screen. Points; no views.
#pragma once

#include "bindings/coregraphics/geometry.hpp"
#include "bindings/uikit/popover_presentation_controller.hpp"

namespace desktop {

/// The sheet that lets the top of what it covers show, as far down as the platform's.
[[nodiscard]] CGRect sheetFrame(CGRect screen, UIEdgeInsets safeArea);

/// The box of a popover and its arrow.
struct PopoverPlace {
    /// Without the arrow.
    CGRect box;
    /// The side of the box that the arrow is on.
    ui::PopoverArrowDirection side{};
    /// Where the arrow points to.
    CGPoint tip;

    static constexpr double arrowHeight = 13;
    static constexpr double arrowBase = 26;
    static constexpr double cornerRadius = 13;

    /// The smallest rectangle around box and arrow.
    [[nodiscard]] CGRect frame() const;
};

/// Puts a popover for `content` next to `anchor`, within `room`: on the first permitted side where
/// it fits, or else on the one with the most room, made smaller. The box never leaves the room.
[[nodiscard]] PopoverPlace popoverPlace(CGRect anchor, CGSize content, CGRect room,
                                        ui::PopoverArrowDirection permittedSides);

} // namespace desktop
