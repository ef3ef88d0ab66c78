// UIPresentationController and UIPopoverPresentationController.
#pragma once

#include "bindings/uikit/view_controller.hpp"

namespace ui {

/// The side of a popover that its arrow is on, as bits; the platform's numbers.
namespace popover_arrow {
inline constexpr unsigned long up = 1U << 0U;
inline constexpr unsigned long down = 1U << 1U;
inline constexpr unsigned long left = 1U << 2U;
inline constexpr unsigned long right = 1U << 3U;
inline constexpr unsigned long any = up | down | left | right;
} // namespace popover_arrow

struct PresentationController : objc::Kind<PresentationController, "UIPresentationController"> {
    using Kind::Kind;

    [[nodiscard]] objc::Object delegate() const { return send<"delegate", objc::Object>(); }
    /// Not retained.
    void setDelegate(objc::Object delegate) const { send<"setDelegate:">(delegate); }
};

struct PopoverPresentationController
    : objc::Kind<PopoverPresentationController, "UIPopoverPresentationController",
                 PresentationController> {
    using Kind::Kind;

    [[nodiscard]] View sourceView() const { return send<"sourceView", View>(); }
    void setSourceView(View view) const { send<"setSourceView:">(view); }
    /// In the coordinates of the source view.
    [[nodiscard]] CGRect sourceRect() const { return send<"sourceRect", CGRect>(); }
    void setSourceRect(CGRect rect) const { send<"setSourceRect:">(rect); }
    void setPermittedArrowDirections(unsigned long directions) const {
        send<"setPermittedArrowDirections:">(directions);
    }
    void setBackgroundColor(Color color) const { send<"setBackgroundColor:">(color); }
};

inline PopoverPresentationController ViewController::popover() const {
    return send<"popoverPresentationController", PopoverPresentationController>();
}

} // namespace ui
