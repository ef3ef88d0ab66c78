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
};

} // namespace ui
