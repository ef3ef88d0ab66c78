// The sheet of named colours.
#pragma once

#include "bindings/uikit/alert_controller.hpp"

namespace wentra::labels {

/// An alert controller by another name, for those who style it.
struct CustomAlertController
    : objc::Kind<CustomAlertController, "CustomAlertController", ui::AlertController> {
    using Kind::Kind;

    static CustomAlertController with(ns::String title, ns::String message, ui::AlertStyle style) {
        return sendClass<"alertControllerWithTitle:message:preferredStyle:", CustomAlertController>(
            title, message, style);
    }
};

/// Declares `CustomAlertController`.
[[gnu::cold]] void registerCustomAlertController();

} // namespace wentra::labels
