// Builds the platform's alert controller step by step.
#include "library/common/alert.hpp"

#include "bindings/dispatch/dispatch.hpp"
#include "bindings/uikit/popover_presentation_controller.hpp"
#include "library/common/animated.hpp"
#include "library/common/screens.hpp"

namespace wentra {

const Alert& Alert::field(ns::String placeholder, ns::String text,
                          ui::TextFieldViewMode clearButton, ui::KeyboardType keyboard) const {
    const auto configure = [placeholder = objc::Copied(placeholder), text = objc::Copied(text),
                            clearButton, keyboard](ui::TextField field) {
        field.setPlaceholder(placeholder);
        field.setText(text);
        field.setClearButtonMode(clearButton);
        field.setKeyboardType(keyboard);
    };
    controller_.addTextField(ui::AlertController::Configuration::from(configure));
    return *this;
}

const Alert& Alert::action(ns::String title, ui::AlertActionStyle style) const {
    controller_.addAction(ui::AlertAction::with(title, style, {}));
    return *this;
}

const Alert& Alert::from(ui::View view, CGRect rect) const {
    const auto popover = controller_.popoverPresentationController();
    popover.setSourceView(view);
    popover.setSourceRect(rect);
    return *this;
}

const Alert& Alert::covering(ui::ModalPresentation style) const {
    controller_.setModalPresentationStyle(style);
    return *this;
}

void Alert::presentFrom(ui::ViewController controller) const {
    presentSheet(controller_, controller);
}

void Alert::presentFor(double seconds, ui::ViewController controller) const {
    const auto goAfterwards = [seconds, alert = controller_] {
        dispatch::after(seconds, dispatch::mainQueue(), [alert] { alert.dismiss(animated); });
    };
    presentSheet(controller_, controller, ui::ViewController::Completion::from(goAfterwards));
}

void Alert::present() const { presentFrom(topViewController()); }

objc::Strong<ui::TextField> Alert::firstField() const { return controller_.textFields().first(); }

} // namespace wentra
