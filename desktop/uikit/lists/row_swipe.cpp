// Where the row and its buttons lie.
#include "desktop/uikit/lists/row_swipe.hpp"

#include "bindings/uikit/button.hpp"

#include <algorithm>
#include <utility>

namespace desktop {
namespace {

constexpr double buttonWidth = 74; // points, as on the phone

ui::Button buttonFor(const RowAction& action, long index, ui::View table) {
    const auto button = ui::Button::withType(ui::ButtonType::custom);
    button.setTitle(action.title, ui::ControlState::normal);
    button.titleLabel().setFont(ui::Font::system(15));
    button.setBackgroundColor(action.color);
    button.setTag(index);
    button.addTarget(table, objc::selector<"chooseRowAction:">(), ui::ControlEvents::touchUpInside);
    return button;
}

} // namespace

RowSwipe::RowSwipe(ItemIndex row, RowActions actions, ui::View table)
    : row_(row), actions_(std::move(actions)), panel_(ui::View::withFrame({})) {
    panel_.setClipsToBounds(true);
    for (std::size_t index = 0; index < actions_.list.size(); ++index) {
        panel_.addSubview(buttonFor(actions_.list[index], static_cast<long>(index), table));
    }
    table.insertSubview(panel_, 0);
}

RowSwipe::~RowSwipe() { panel_.removeFromSuperview(); }

double RowSwipe::openOffset() const {
    return buttonWidth * static_cast<double>(actions_.list.size());
}

void RowSwipe::moveTo(double offset) { offset_ = std::max(0.0, offset); }

bool RowSwipe::meansFirst(double width) const {
    constexpr double farAcross = 0.6;
    return actions_.performsFirst && offset_ > std::max(openOffset(), farAcross * width);
}

bool RowSwipe::staysOpen(double velocity) const {
    constexpr double flick = 300; // points a second
    return velocity < -flick || (velocity < flick && offset_ > openOffset() / 2);
}

/// The first one at the edge; all of them share what is free.
void RowSwipe::layOut(CGRect rowFrame) const {
    const double right = rowFrame.origin.x + rowFrame.size.width;
    panel_.setFrame({{right - offset_, rowFrame.origin.y}, {offset_, rowFrame.size.height}});
    const auto buttons = panel_.subviews();
    const double width = std::max(buttonWidth, offset_ / static_cast<double>(actions_.list.size()));
    double left = offset_;
    for (const ui::View button : buttons) {
        left -= width;
        button.setFrame({{left, 0}, {width, rowFrame.size.height}});
    }
}

} // namespace desktop
