// Buttons: titles, images and colours by state.
#include "desktop/uikit/controls/button.hpp"

#include "desktop/new_object.hpp"

#include <algorithm>

namespace desktop {
namespace {

/// The value for that state, or else for the normal one; nil when there is neither.
template <class Values>
auto valueFor(const Values& values, ui::ControlState state) {
    auto found = values.find(state);
    found = found != values.end() ? found : values.find(ui::ControlState::normal);
    using Kind = objc::Lent<typename Values::mapped_type>;
    return found != values.end() ? static_cast<Kind>(found->second) : Kind();
}

/// The grey of what cannot be used.
ui::Color disabledColor() { return ui::Color::sendClass<"tertiaryLabelColor", ui::Color>(); }

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
        objc::method<"currentTitleColor", &Button::currentTitleColor>(),
        objc::method<"setImage:forState:", &Button::setImage>(),
        objc::method<"imageForState:", &Button::imageFor>(),
        objc::method<"currentImage", &Button::currentImage>(),
        objc::method<"setBackgroundImage:forState:", &Button::setBackgroundImage>(),
        objc::method<"backgroundImageForState:", &Button::backgroundImageFor>(),
        objc::method<"titleLabel", &Button::label_>(),
        objc::method<"imageView", &Button::imageView>(),
        objc::method<"setTintColor:", &Button::setTintColor>(),
        objc::property<"contentEdgeInsets", &Button::insets_, &Button::insetsChanged>(),
        objc::property<"titleEdgeInsets", &Button::titleInsets_, &Button::insetsChanged>(),
        objc::property<"imageEdgeInsets", &Button::imageInsets_, &Button::insetsChanged>(),
        objc::property<"adjustsImageWhenHighlighted", &Button::adjustsImageWhenHighlighted_>(),
        objc::property<"adjustsImageWhenDisabled", &Button::adjustsImageWhenDisabled_>(),
        objc::method<"layoutSubviews", &Button::layoutSubviews>(),
        objc::method<"sizeThatFits:", &Button::sizeThatFits>(),
        objc::method<"intrinsicContentSize", &Button::intrinsicContentSize>(),
    };
}

ui::Button Button::ofType(Class cls, ui::ButtonType type) {
    const auto button = newObject<ui::Button>(cls);
    of(button).type_ = type;
    of(button).showState();
    return button;
}

ui::Button Button::initWithFrame(CGRect frame) {
    super<"initWithFrame:", ui::View>(frame);
    constexpr double titleSize = 15;
    label_ = ui::Label::withFrame({});
    label_.setFont(ui::Font::system(titleSize));
    label_.setTextAlignment(ui::TextAlignment::center);
    label_.setLineBreakMode(ui::LineBreakMode::truncatingMiddle);
    self().addSubview(label_);
    return self();
}

ui::ImageView Button::imageView() {
    if (!imageView_) {
        imageView_ = ui::ImageView::withImage(nullptr);
        imageView_.setContentMode(ui::ContentMode::scaleAspectFit);
        imageView_.setUserInteractionEnabled(false);
        self().insertSubview(imageView_, backgroundView_ ? 1 : 0);
    }
    return imageView_;
}

void Button::contentChanged() {
    showState();
    self().setNeedsLayout();
    self().superview().setNeedsLayout(); // the button's own size may be another one now
}

void Button::setTitle(ns::String title, ui::ControlState state) {
    titles_[state] = title;
    contentChanged();
}

ns::String Button::titleFor(ui::ControlState state) const { return valueFor(titles_, state); }

void Button::setTitleColor(ui::Color color, ui::ControlState state) {
    colours_[state] = color;
    showState();
}

ui::Color Button::titleColorFor(ui::ControlState state) const {
    const bool isDisabled = objc::haveAny(state, ui::ControlState::disabled);
    if (isDisabled && isSystem() && !colours_.contains(state)) {
        return disabledColor();
    }
    if (const ui::Color set = valueFor(colours_, state); set) {
        return set;
    }
    return isSystem() ? self().tintColor() : ui::Color::white();
}

void Button::setImage(ui::Image image, ui::ControlState state) {
    images_[state] = image;
    contentChanged();
}

ui::Image Button::imageFor(ui::ControlState state) const { return valueFor(images_, state); }

void Button::setBackgroundImage(ui::Image image, ui::ControlState state) {
    backgrounds_[state] = image;
    if (!backgroundView_) {
        backgroundView_ = ui::ImageView::withImage(nullptr);
        backgroundView_.setUserInteractionEnabled(false);
        self().insertSubview(backgroundView_, 0);
    }
    contentChanged();
}

ui::Image Button::backgroundImageFor(ui::ControlState state) const {
    return valueFor(backgrounds_, state);
}

void Button::setTintColor(ui::Color color) {
    super<"setTintColor:">(color);
    showState();
}

void Button::showState() {
    const ui::ControlState state = self().state();
    constexpr double dimmed = 0.3;
    label_.setTextColor(titleColorFor(state));
    label_.setAlpha(self().isHighlighted() && isSystem() ? dimmed : 1);
    // Only a new title is set: a hook on the label may have changed what it shows.
    if (const ns::String title = titleFor(state); title != shown_) {
        shown_ = title;
        label_.setText(title);
    }
    showImages(state);
}

void Button::showImages(ui::ControlState state) {
    if (const ui::Image image = imageFor(state); image || imageView_) {
        constexpr double dimmed = 0.3;
        constexpr double darkened = 0.5;
        const bool isDisabled = !self().isEnabled();
        const ui::ImageView view = imageView();
        view.setImage(image);
        view.setTintColor(isDisabled ? disabledColor() : ui::Color());
        const bool dims = (self().isHighlighted() && adjustsImageWhenHighlighted_) ||
                          (isDisabled && !isSystem() && adjustsImageWhenDisabled_);
        view.setAlpha(!dims ? 1 : isSystem() ? dimmed : darkened);
    }
    backgroundView_.setImage(backgroundImageFor(state));
}

ButtonContent Button::content() const {
    ButtonContent content;
    content.image = currentImage().size();
    content.title = label_.text().length() > 0 ? label_.sizeThatFits({}) : CGSize();
    content.contentInsets = insets_;
    content.imageInsets = imageInsets_;
    content.titleInsets = titleInsets_;
    content.horizontal = self().send<"contentHorizontalAlignment", HorizontalAlignment>();
    content.vertical = self().send<"contentVerticalAlignment", VerticalAlignment>();
    return content;
}

void Button::layoutSubviews() {
    showState();
    const ButtonLayout layout = layOutButton(content(), self().bounds());
    label_.setFrame(layout.title);
    imageView_.setFrame(layout.image);
    backgroundView_.setFrame(self().bounds());
}

CGSize Button::sizeThatFits(CGSize) const { return buttonSize(content()); }

} // namespace desktop
