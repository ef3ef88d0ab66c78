// UIAlertController and UIAlertAction.
#pragma once

#include "bindings/objc/block.hpp"
#include "bindings/uikit/text_field.hpp"
#include "bindings/uikit/view_controller.hpp"

namespace ui {

/// The platform's numbers.
enum class AlertStyle : long { actionSheet = 0, alert = 1 };
enum class AlertActionStyle : long { normal = 0, cancel = 1, destructive = 2 };

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

struct AlertController : objc::Kind<AlertController, "UIAlertController", ViewController> {
    using Kind::Kind;
    using Configuration = objc::Block<void(TextField)>;

    static AlertController with(ns::String title, ns::String message, AlertStyle style) {
        return sendClass<"alertControllerWithTitle:message:preferredStyle:", AlertController>(
            title, message, style);
    }
    [[nodiscard]] ns::String message() const { return send<"message", ns::String>(); }
    void setMessage(ns::String message) const { send<"setMessage:">(message); }
    [[nodiscard]] AlertStyle style() const { return send<"preferredStyle", AlertStyle>(); }
    void addAction(AlertAction action) const { send<"addAction:">(action); }
    [[nodiscard]] ns::Array actions() const { return send<"actions", ns::Array>(); }
    void setPreferredAction(AlertAction action) const { send<"setPreferredAction:">(action); }
    [[nodiscard]] AlertAction preferredAction() const {
        return send<"preferredAction", AlertAction>();
    }
    /// Calls the block, which may be nil, with the new field at once.
    void addTextField(Configuration configuration) const {
        send<"addTextFieldWithConfigurationHandler:">(configuration);
    }
    /// Nil when there is none.
    [[nodiscard]] ns::Array textFields() const { return send<"textFields", ns::Array>(); }
};

} // namespace ui
