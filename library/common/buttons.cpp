// Makes a system button and sets what its look says.
#include "library/common/buttons.hpp"

namespace wentra {

ui::Button makeButton(const ButtonLook& look, objc::Object target, SEL action) {
    const auto button = ui::Button::withType(ui::ButtonType::system);
    button.setFrame(look.frame);
    button.setTitle(look.title, ui::ControlState::normal);
    if (look.symbol) {
        button.setImage(ui::Image::systemNamed(look.symbol), ui::ControlState::normal);
    }
    if (look.textSize > 0) {
        button.titleLabel().setFont(ui::Font::system(look.textSize));
    }
    if (look.titleColor) {
        button.setTitleColor(look.titleColor, ui::ControlState::normal);
    }
    button.setBackgroundColor(look.background);
    button.layer().setCornerRadius(look.cornerRadius);
    if (action != nullptr) {
        button.addTarget(target, action, ui::ControlEvents::touchUpInside);
    }
    return button;
}

} // namespace wentra
