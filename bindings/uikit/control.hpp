// UIControl.
#pragma once

#include "bindings/uikit/event.hpp"
#include "bindings/uikit/view.hpp"

namespace ui {

/// What happens to a control; bits that may be combined.
namespace control_events {
inline constexpr unsigned long touchDown = 1U << 0U;
inline constexpr unsigned long touchDragInside = 1U << 2U;
inline constexpr unsigned long touchDragOutside = 1U << 3U;
inline constexpr unsigned long touchUpInside = 1U << 6U;
inline constexpr unsigned long touchUpOutside = 1U << 7U;
inline constexpr unsigned long touchCancel = 1U << 8U;
inline constexpr unsigned long editingDidBegin = 1U << 16U;
inline constexpr unsigned long editingChanged = 1U << 17U;
inline constexpr unsigned long editingDidEnd = 1U << 18U;
inline constexpr unsigned long editingDidEndOnExit = 1U << 19U;
} // namespace control_events

/// The states of a control; bits that may be combined.
namespace control_state {
inline constexpr unsigned long normal = 0;
inline constexpr unsigned long highlighted = 1U << 0U;
inline constexpr unsigned long disabled = 1U << 1U;
inline constexpr unsigned long selected = 1U << 2U;
} // namespace control_state

struct Control : objc::Kind<Control, "UIControl", View> {
    using Kind::Kind;

    [[nodiscard]] bool isEnabled() const { return send<"isEnabled", bool>(); }
    void setEnabled(bool enabled) const { send<"setEnabled:">(enabled); }
    [[nodiscard]] bool isHighlighted() const { return send<"isHighlighted", bool>(); }
    void setHighlighted(bool highlighted) const { send<"setHighlighted:">(highlighted); }
    [[nodiscard]] unsigned long state() const { return send<"state", unsigned long>(); }
    /// The target is not retained; nil means the first responder up the chain that has the action.
    /// The action takes nothing, the control, or the control and the event.
    void addTarget(objc::Object target, SEL action, unsigned long events) const {
        send<"addTarget:action:forControlEvents:">(target, action, events);
    }
    void sendActions(unsigned long events) const { send<"sendActionsForControlEvents:">(events); }
};

} // namespace ui
