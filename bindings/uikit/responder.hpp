// UIResponder.
#pragma once

#include "bindings/objc/kind.hpp"
#include "bindings/objc/strong.hpp"

namespace ui {

struct Responder : objc::Kind<Responder, "UIResponder"> {
    using Kind::Kind;

    [[nodiscard]] Responder nextResponder() const { return send<"nextResponder", Responder>(); }
    [[nodiscard]] bool canBecomeFirstResponder() const {
        return send<"canBecomeFirstResponder", bool>();
    }
    [[nodiscard]] bool isFirstResponder() const { return send<"isFirstResponder", bool>(); }
    /// False when this responder or the present one refuses.
    bool becomeFirstResponder() const { return send<"becomeFirstResponder", bool>(); }
    bool resignFirstResponder() const { return send<"resignFirstResponder", bool>(); }
    [[nodiscard]] bool canPerformAction(SEL action, objc::Object sender) const {
        return send<"canPerformAction:withSender:", bool>(action, sender);
    }
    /// This responder or the first one up the chain that can perform the action; or nil.
    [[nodiscard]] Responder targetForAction(SEL action, objc::Object sender) const {
        return send<"targetForAction:withSender:", Responder>(action, sender);
    }
};

} // namespace ui
