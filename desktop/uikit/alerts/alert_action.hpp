// UIAlertAction: a choice that an alert offers.
#pragma once

#include "bindings/uikit/alert_controller.hpp"

#include "desktop/class.hpp"
#include "desktop/new_object.hpp"
#include "desktop/uikit/values/immutable.hpp"

#include <functional>

namespace desktop {

class AlertAction : public PlatformClass<AlertAction, ui::AlertAction> {
public:
    static constexpr auto methods() {
        return std::array{
            objc::classMethod<"actionWithTitle:style:handler:", &AlertAction::with>(),
            objc::method<"title", &AlertAction::title_>(),
            objc::method<"style", &AlertAction::style_>(),
            objc::flag<"enabled", &AlertAction::enabled_, &AlertAction::enabledChanged>(),
            copyIsSelf(),
        };
    }

    void perform() const {
        const objc::Strong<ui::AlertAction> kept = self();
        if (handler_) {
            handler_(kept);
        }
    }
    /// Called when the action is switched on or off; for the alert that shows it.
    std::function<void()> changed;

private:
    static ui::AlertAction with(Class cls, ns::String title, ui::AlertActionStyle style,
                                ui::AlertAction::Handler handler) {
        const auto action = newObject<ui::AlertAction>(cls);
        of(action).title_ = title;
        of(action).style_ = style;
        of(action).handler_ = handler;
        return action;
    }
    void enabledChanged() {
        if (changed) {
            changed();
        }
    }

    objc::Copied<ns::String> title_;
    ui::AlertActionStyle style_ = ui::AlertActionStyle::default_;
    objc::Copied<ui::AlertAction::Handler> handler_;
    bool enabled_ = true;
};

} // namespace desktop
