// Alerts and sheets in the lines that their description takes.
#pragma once

#include "bindings/uikit/alert_controller.hpp"

#include <concepts>
#include <utility>

namespace wentra {

/// An alert on its way to the screen: title, message, then fields, then actions in their order.
///
///     Alert(u"错误"_ns, message).action(u"好的"_ns).present();
///
/// Nil titles and messages are left out. What an action does is called once the alert is gone; it
/// takes nothing, or the alert's first field. Main thread only.
class Alert {
public:
    explicit Alert(ns::String title, ns::String message = nullptr)
        : Alert(ui::AlertController::with(title, message, ui::AlertStyle::alert)) {}
    /// For alert controllers of another class or style.
    explicit Alert(ui::AlertController controller) : controller_(controller) {}

    /// Adds a text field; fields come before the actions that read them.
    const Alert& field(ns::String placeholder = nullptr, ns::String text = nullptr,
                       ui::TextFieldViewMode clearButton = ui::TextFieldViewMode::never,
                       ui::KeyboardType keyboard = ui::KeyboardType::default_) const;

    /// An action that only closes the alert.
    const Alert& action(ns::String title,
                        ui::AlertActionStyle style = ui::AlertActionStyle::default_) const;

    template <std::invocable Body>
    const Alert& action(ns::String title, ui::AlertActionStyle style, Body body) const {
        return add(title, style, [body = std::move(body)](ui::AlertAction) { body(); });
    }
    template <std::invocable<ui::TextField> Body>
    const Alert& action(ns::String title, ui::AlertActionStyle style, Body body) const {
        return add(title, style, [body = std::move(body), field = firstField()](ui::AlertAction) {
            body(field);
        });
    }
    template <class Body>
    requires(!std::same_as<Body, ui::AlertActionStyle>) const Alert& action(ns::String title,
                                                                            Body body) const {
        return action(title, ui::AlertActionStyle::default_, std::move(body));
    }

    /// Where a sheet points at when it is shown as a popover.
    const Alert& from(ui::View view, CGRect rect) const;

    /// How the alert covers what is there, when not in the platform's own way.
    const Alert& covering(ui::ModalPresentation style) const;

    /// Shows the alert above everything, animated.
    void present() const;
    /// The same from that controller. Nothing for nil, and where it presents something already.
    void presentFrom(ui::ViewController controller) const;
    /// The same, for so many seconds: it goes by itself.
    void presentFor(double seconds, ui::ViewController controller) const;

private:
    template <class Body>
    const Alert& add(ns::String title, ui::AlertActionStyle style, Body body) const {
        controller_.addAction(
            ui::AlertAction::with(title, style, ui::AlertAction::Handler::from(std::move(body))));
        return *this;
    }
    [[nodiscard]] objc::Strong<ui::TextField> firstField() const;

    objc::Strong<ui::AlertController> controller_;
};

} // namespace wentra
