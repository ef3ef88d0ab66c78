// UIAlertController.
#pragma once

#include "bindings/objc/block.hpp"
#include "bindings/uikit/alert_action.hpp"
#include "bindings/uikit/text_field.hpp"
#include "bindings/uikit/view_controller.hpp"

namespace ui {

/// The platform's numbers.
enum class AlertStyle : long { actionSheet = 0, alert = 1 };

struct AlertController : objc::Kind<AlertController, "UIAlertController", ViewController> {
    using Kind::Kind;
    using Configuration = objc::Block<void(TextField)>;

    static AlertController with(ns::String title, ns::String message, AlertStyle style) {
        return sendClass<"alertControllerWithTitle:message:preferredStyle:", AlertController>(
            title, message, style);
    }
    [[nodiscard]] ns::String message() const { return send<"message", ns::String>(); }
    [[nodiscard]] AlertStyle preferredStyle() const { return send<"preferredStyle", AlertStyle>(); }
    void addAction(AlertAction action) const { send<"addAction:">(action); }
    [[nodiscard]] ns::ArrayOf<AlertAction> actions() const {
        return send<"actions", ns::ArrayOf<AlertAction>>();
    }
    /// Calls the block, which may be nil, with the new field at once.
    void addTextField(Configuration configuration) const {
        send<"addTextFieldWithConfigurationHandler:">(configuration);
    }
    /// Nil when there is none.
    [[nodiscard]] ns::ArrayOf<TextField> textFields() const {
        return send<"textFields", ns::ArrayOf<TextField>>();
    }
};

} // namespace ui
