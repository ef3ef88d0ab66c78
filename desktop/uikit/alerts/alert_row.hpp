// The row of an alert that an action is chosen by.
#pragma once

#include "bindings/objc/weak.hpp"
#include "bindings/uikit/alert_controller.hpp"
#include "bindings/uikit/label.hpp"

#include "desktop/class.hpp"

namespace desktop {

struct AlertRowKind : objc::Kind<AlertRowKind, "_UIAlertControllerActionView", ui::Control> {
    using Kind::Kind;
};

/// Shows the action's title, in grey while a finger is on it.
class AlertRow : public PlatformClass<AlertRow, AlertRowKind> {
public:
    static constexpr auto methods() {
        return std::array{
            objc::method<"layoutSubviews", &AlertRow::layoutSubviews>(),
            objc::method<"setHighlighted:", &AlertRow::setHighlighted>(),
            objc::method<"chosen", &AlertRow::chosen>(),
        };
    }

    /// The alert is not kept: it owns its view, and so the row.
    static AlertRowKind forAction(ui::AlertAction action, ui::AlertController alert, ui::Font font);
    [[nodiscard]] double titleWidth() const { return label_.sizeThatFits({}).width; }

private:
    void layoutSubviews();
    void setHighlighted(bool highlighted);
    void chosen();

    objc::Strong<ui::AlertAction> action_;
    objc::Weak<ui::AlertController> alert_;
    objc::Strong<ui::Label> label_;
};

} // namespace desktop
