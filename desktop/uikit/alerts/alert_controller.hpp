// UIAlertController: a message with choices, as an alert or as a sheet of actions.
#pragma once

#include "bindings/foundation/notification_center.hpp"
#include "bindings/uikit/alert_controller.hpp"

#include "desktop/class.hpp"

#include <vector>

namespace desktop {

class AlertController : public PlatformClass<AlertController, ui::AlertController> {
public:
    static std::vector<objc::MethodRow> methods();

    ~AlertController();

    /// Where the alert lies in a window of these bounds.
    [[nodiscard]] CGRect frameIn(CGRect bounds);
    /// As a tap on the action: takes the alert down, then performs the action. A disabled action is
    /// ignored.
    void choose(ui::AlertAction action);
    /// Chooses the cancel action; nothing without one.
    void cancel();

    [[nodiscard]] const std::vector<objc::Strong<ui::AlertAction>>& actionList() const {
        return actions_;
    }
    [[nodiscard]] const std::vector<objc::Strong<ui::TextField>>& fieldList() const {
        return fields_;
    }
    /// The action whose title is bold.
    [[nodiscard]] ui::AlertAction emphasised() const;

private:
    static ui::AlertController with(Class cls, ns::String title, ns::String message,
                                    ui::AlertStyle style);
    void loadView();
    void viewDidAppear(bool animated);
    void keyboardWillMove(ns::Notification);
    void setTitle(ns::String title);
    void addAction(ui::AlertAction action);
    [[nodiscard]] ns::Array actions() const;
    void addTextField(ui::AlertController::Configuration configuration);
    [[nodiscard]] ns::Array textFields() const;
    void contentChanged();

    ui::AlertStyle style_ = ui::AlertStyle::actionSheet;
    objc::Copied<ns::String> message_;
    std::vector<objc::Strong<ui::AlertAction>> actions_;
    std::vector<objc::Strong<ui::TextField>> fields_;
    objc::Strong<ui::AlertAction> preferred_;
};

} // namespace desktop
