// UIControl.
#pragma once

#include "bindings/objc/options.hpp"
#include "bindings/uikit/event.hpp"
#include "bindings/uikit/view.hpp"

namespace ui {

using objc::operator|, objc::operator&, objc::operator~;

/// What happens to a control; bits that may be combined.
enum class ControlEvents : unsigned long {
    touchDown = 1U << 0U,
    touchDragInside = 1U << 2U,
    touchDragOutside = 1U << 3U,
    touchUpInside = 1U << 6U,
    touchUpOutside = 1U << 7U,
    touchCancel = 1U << 8U,
    valueChanged = 1U << 12U,
    editingDidBegin = 1U << 16U,
    editingChanged = 1U << 17U,
    editingDidEnd = 1U << 18U,
    editingDidEndOnExit = 1U << 19U,
};
constexpr bool areOptions(ControlEvents) { return true; }

/// The states of a control; bits that may be combined.
enum class ControlState : unsigned long {
    normal = 0,
    highlighted = 1U << 0U,
    disabled = 1U << 1U,
    selected = 1U << 2U,
};
constexpr bool areOptions(ControlState) { return true; }

struct Control : objc::Kind<Control, "UIControl", View> {
    using Kind::Kind;

    [[nodiscard]] bool isEnabled() const { return send<"isEnabled", bool>(); }
    void setEnabled(bool enabled) const { send<"setEnabled:">(enabled); }
    [[nodiscard]] bool isHighlighted() const { return send<"isHighlighted", bool>(); }
    void setHighlighted(bool highlighted) const { send<"setHighlighted:">(highlighted); }
    [[nodiscard]] ControlState state() const { return send<"state", ControlState>(); }
    /// The target is not retained; nil means the first responder up the chain that has the action.
    /// The action takes nothing, the control, or the control and the event.
    void addTarget(objc::Object target, SEL action, ControlEvents events) const {
        send<"addTarget:action:forControlEvents:">(target, action, events);
    }
    void sendActions(ControlEvents events) const { send<"sendActionsForControlEvents:">(events); }
};

} // namespace ui
