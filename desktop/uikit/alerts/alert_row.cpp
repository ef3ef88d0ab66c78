// An action's title and what touching it does.
#include "desktop/uikit/alerts/alert_row.hpp"

#include "desktop/uikit/alerts/alert_controller.hpp"
#include "desktop/uikit/values/color.hpp"

namespace desktop {
namespace {

/// Between the title and the row's edges.
constexpr double rowMargin = 12;

ui::Color colourOf(ui::AlertAction action) {
    if (!action.isEnabled()) {
        return ui::Color::sendClass<"tertiaryLabelColor", ui::Color>();
    }
    return action.style() == ui::AlertActionStyle::destructive
               ? ui::Color::sendClass<"systemRedColor", ui::Color>()
               : ui::Color::systemBlue();
}

} // namespace

AlertRowKind AlertRow::forAction(ui::AlertAction action, ui::AlertController alert, ui::Font font) {
    const auto row = AlertRowKind::make<"initWithFrame:">(CGRect());
    AlertRow& peer = of(row);
    peer.action_ = action;
    peer.alert_ = alert;
    peer.label_ = ui::Label::withFrame({});
    peer.label_.setText(action.title());
    peer.label_.setFont(font);
    peer.label_.setTextColor(colourOf(action));
    peer.label_.setTextAlignment(ui::TextAlignment::center);
    peer.label_.setLineBreakMode(ui::LineBreakMode::truncatingMiddle);
    peer.label_.setAdjustsFontSizeToFitWidth(true);
    constexpr double smallest = 0.6;
    peer.label_.setMinimumScaleFactor(smallest);
    row.addSubview(peer.label_);
    row.setEnabled(action.isEnabled());
    row.setAccessibilityLabel(action.title());
    row.addTarget(row, objc::selector<"chosen">(), ui::ControlEvents::touchUpInside);
    return row;
}

void AlertRow::layoutSubviews() {
    const CGSize size = self().bounds().size;
    label_.setFrame({{rowMargin, 0}, {std::max(0.0, size.width - 2 * rowMargin), size.height}});
}

void AlertRow::setHighlighted(bool highlighted) {
    super<"setHighlighted:">(highlighted);
    constexpr double shade = 0.08;
    self().setBackgroundColor(highlighted ? Color::adaptive({0, 0, 0, shade}, {1, 1, 1, shade})
                                          : ui::Color());
}

/// Nothing when the alert is gone already and only its view is still on its way.
void AlertRow::chosen() {
    if (const auto alert = alert_.strong(); alert) {
        AlertController::of(alert).choose(action_);
    }
}

} // namespace desktop
