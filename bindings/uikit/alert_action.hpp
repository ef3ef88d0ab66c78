// UIAlertAction: a button of an alert.
#pragma once

#include "bindings/foundation/string.hpp"
#include "bindings/objc/block.hpp"

namespace ui {

/// The platform's numbers.
enum class AlertActionStyle : long { default_ = 0, cancel = 1, destructive = 2 };

struct AlertAction : objc::Kind<AlertAction, "UIAlertAction"> {
    using Kind::Kind;
    using Handler = objc::Block<void(AlertAction)>;

    /// The handler, which may be nil, is called after the alert is gone.
    static AlertAction with(ns::String title, AlertActionStyle style, Handler handler) {
        return sendClass<"actionWithTitle:style:handler:", AlertAction>(title, style, handler);
    }
    [[nodiscard]] ns::String title() const { return send<"title", ns::String>(); }
    [[nodiscard]] AlertActionStyle style() const { return send<"style", AlertActionStyle>(); }
    [[nodiscard]] bool isEnabled() const { return send<"isEnabled", bool>(); }
    void setEnabled(bool enabled) const { send<"setEnabled:">(enabled); }
};

} // namespace ui
