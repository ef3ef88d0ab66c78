// Buttons: titles and colours by state, and where the title lies.
#include "desktop/uikit/button.hpp"

#include <algorithm>

namespace desktop {
namespace {

/// The value for that state, or else for the normal one; nil when there is neither.
template <class Values>
auto valueFor(const Values& values, unsigned long state) {
    auto found = values.find(state);
    found = found != values.end() ? found : values.find(ui::control_state::normal);
    using Kind = objc::Lent<typename Values::mapped_type>;
    return found != values.end() ? static_cast<Kind>(found->second) : Kind();
}

} // namespace

std::vector<objc::MethodRow> Button::methods() {
    return {
        objc::classMethod<"buttonWithType:", &Button::ofType>(),
        objc::method<"buttonType", &Button::type_>(),
        objc::method<"initWithFrame:", &Button::initWithFrame>(),
        objc::method<"setTitle:forState:", &Button::setTitle>(),
        objc::method<"titleForState:", &Button::titleFor>(),
        objc::method<"currentTitle", &Button::currentTitle>(),
        objc::method<"setTitleColor:forState:", &Button::setTitleColor>(),
        objc::method<"titleColorForState:", &Button::titleColorFor>(),
        objc::method<"titleLabel", &Button::label_>(),
        objc::property<"contentEdgeInsets", &Button::insets_, &Button::insetsChanged>(),
        objc::method<"layoutSubviews", &Button::layoutSubviews>(),
        objc::method<"sizeThatFits:", &Button::sizeThatFits>(),
        objc::method<"intrinsicContentSize", &Button::intrinsicContentSize>(),
    };
}

ui::Button Button::ofType(Class cls, ui::ButtonType type) {
    const auto button = objc::send<"new", ui::Button>(objc::object(cls));
    of(button).type_ = type;
    of(button).showState();
    return button.send<"autorelease", ui::Button>();
}

ui::Button Button::initWithFrame(CGRect frame) {
    super<"initWithFrame:", ui::View>(frame);
    constexpr double titleSize = 15;
    label_ = ui::Label::withFrame({});
    label_.setFont(ui::Font::system(titleSize));
    label_.setTextAlignment(ui::TextAlignment::center);
    self().addSubview(label_);
    return self();
}

void Button::setTitle(ns::String title, unsigned long state) {
    titles_[state] = title;
    showState();
    self().setNeedsLayout();
}

ns::String Button::titleFor(unsigned long state) const { return valueFor(titles_, state); }

void Button::setTitleColor(ui::Color color, unsigned long state) {
    colours_[state] = color;
    showState();
}

ui::Color Button::titleColorFor(unsigned long state) const {
    if (const ui::Color set = valueFor(colours_, state); set) {
        return set;
    }
    if ((state & ui::control_state::disabled) != 0) {
        return ui::Color::secondaryLabel();
    }
    return type_ == ui::ButtonType::system ? self().tintColor() : ui::Color::white();
}

void Button::showState() {
    const unsigned long state = self().state();
    constexpr double dimmed = 0.3;
    label_.setTextColor(titleColorFor(state));
    label_.setAlpha(self().isHighlighted() ? dimmed : 1);
    // Only a new title is set: a hook on the label may have changed what it shows.
    if (const ns::String title = titleFor(state); title != shown_) {
        shown_ = title;
        label_.setText(title);
    }
}

void Button::layoutSubviews() {
    showState();
    const CGRect bounds = self().bounds();
    label_.setFrame({{bounds.origin.x + insets_.left, bounds.origin.y + insets_.top},
                     {std::max(0.0, bounds.size.width - insets_.left - insets_.right),
                      std::max(0.0, bounds.size.height - insets_.top - insets_.bottom)}});
}

CGSize Button::sizeThatFits(CGSize) const {
    const CGSize title = label_.sizeThatFits({});
    return {title.width + insets_.left + insets_.right,
            title.height + insets_.top + insets_.bottom};
}

} // namespace desktop
