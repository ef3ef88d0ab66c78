// UIPopoverPresentationController.
#pragma once

#include "bindings/objc/options.hpp"
#include "bindings/uikit/presentation_controller.hpp"
#include "bindings/uikit/view_controller.hpp"

namespace ui {

using objc::operator|, objc::operator&, objc::operator~;

/// The side of a popover that its arrow is on, as bits; the platform's numbers.
enum class PopoverArrowDirection : unsigned long {
    up = 1U << 0U,
    down = 1U << 1U,
    left = 1U << 2U,
    right = 1U << 3U,
    any = up | down | left | right,
};
constexpr bool areOptions(PopoverArrowDirection) { return true; }

struct PopoverPresentationController
    : objc::Kind<PopoverPresentationController, "UIPopoverPresentationController",
                 PresentationController> {
    using Kind::Kind;

    [[nodiscard]] View sourceView() const { return send<"sourceView", View>(); }
    void setSourceView(View view) const { send<"setSourceView:">(view); }
    /// In the coordinates of the source view.
    [[nodiscard]] CGRect sourceRect() const { return send<"sourceRect", CGRect>(); }
    void setSourceRect(CGRect rect) const { send<"setSourceRect:">(rect); }
    void setPermittedArrowDirections(PopoverArrowDirection directions) const {
        send<"setPermittedArrowDirections:">(directions);
    }
    void setBackgroundColor(Color color) const { send<"setBackgroundColor:">(color); }
};

inline PopoverPresentationController ViewController::popoverPresentationController() const {
    return send<"popoverPresentationController", PopoverPresentationController>();
}

} // namespace ui
