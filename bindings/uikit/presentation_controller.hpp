// UIPresentationController.
#pragma once

#include "bindings/objc/kind.hpp"

namespace ui {

struct PresentationController : objc::Kind<PresentationController, "UIPresentationController"> {
    using Kind::Kind;

    [[nodiscard]] objc::Object delegate() const { return send<"delegate", objc::Object>(); }
    /// Not retained.
    void setDelegate(objc::Object delegate) const { send<"setDelegate:">(delegate); }
};

} // namespace ui
